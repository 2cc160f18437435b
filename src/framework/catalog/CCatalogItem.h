#pragma once
// One item of a catalog: a group that holds other items, or an element (a fitting, a valve...)
// with its data as a property set. Items form a tree; a catalog (CCatalog) creates, moves and
// removes them, so that its index of ids stays right.
//
// Ownership: an item owns its children; the parent pointer does not own.

#include "framework/data/CPropertiesEx.h"
#include "framework/data/CPropertyEx.h"

#include <boost/shared_ptr.hpp>

#include <string>
#include <vector>

namespace XimoGis::Data {

class CCatalogItem {
public:
    CCatalogItem(std::wstring id, std::wstring name, bool isGroup, std::wstring itemType);
    CCatalogItem(const CCatalogItem&) = delete;
    CCatalogItem& operator=(const CCatalogItem&) = delete;

    // The identifier, unique within the catalog (a GUID in braces for items made here).
    const std::wstring& GetId() const { return m_id; }
    const std::wstring& GetName() const { return m_name; }
    void SetName(const std::wstring& name) { m_name = name; }
    bool IsGroup() const { return m_isGroup; }
    // The type whose template gave the item its properties; may be empty for groups.
    const std::wstring& GetItemType() const { return m_itemType; }

    // Null for an item at the root of the catalog.
    CCatalogItem* GetParentItem() const { return m_parent; }
    // In their order within this item.
    const std::vector<boost::shared_ptr<CCatalogItem>>& GetChildren() const { return m_children; }
    // True when `item` lies below this item (at any depth).
    bool IsAncestorOf(const CCatalogItem* item) const;

    // Empty pointer when the item has no property with this tag.
    boost::shared_ptr<CPropertyEx> GetProperty(const std::wstring& tag) const { return m_properties.GetProperty(tag); }
    CPropertiesEx& GetProperties() { return m_properties; }
    const CPropertiesEx& GetProperties() const { return m_properties; }

    // Compares id, name, group flag, item type, properties and the children's subtrees; the
    // parent is not compared.
    bool operator==(const CCatalogItem& other) const;

private:
    friend class CCatalog;

    std::wstring m_id;
    std::wstring m_name;
    bool m_isGroup;
    std::wstring m_itemType;
    CCatalogItem* m_parent = nullptr;
    std::vector<boost::shared_ptr<CCatalogItem>> m_children;
    CPropertiesEx m_properties;
};

}  // namespace XimoGis::Data
