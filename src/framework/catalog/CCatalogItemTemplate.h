#pragma once
// The template of one item type of a catalog: the properties, with their defaults, that an item of
// that type is given when it is created. A catalog holds one template per item type.

#include "framework/data/CPropertiesEx.h"

#include <boost/shared_ptr.hpp>

#include <string>

namespace XimoGis::Data {

class CCatalogItemTemplate {
public:
    explicit CCatalogItemTemplate(std::wstring itemType);
    CCatalogItemTemplate(const CCatalogItemTemplate&) = delete;
    CCatalogItemTemplate& operator=(const CCatalogItemTemplate&) = delete;

    // The standard template of element items drawn from block files ("ELEMENT_BLOCK01"): element
    // data (name, PN, DN, mass, length, angle, part type, four free texts, element type, catalog
    // number) and the block files of the six view directions. Texts start empty, numbers, catalog
    // number and blocks start null (not known), and "AS_ELEMENTTYPE" starts as the item type.
    static boost::shared_ptr<CCatalogItemTemplate> CreateElementBlock();

    const std::wstring& GetItemType() const { return m_itemType; }
    CPropertiesEx& GetProperties() { return m_properties; }
    const CPropertiesEx& GetProperties() const { return m_properties; }

    bool operator==(const CCatalogItemTemplate& other) const;

private:
    std::wstring m_itemType;
    CPropertiesEx m_properties;
};

}  // namespace XimoGis::Data
