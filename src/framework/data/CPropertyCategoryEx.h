#pragma once
// A category of a property set: a titled group of properties kept in their order. Properties are
// added through the owning CPropertiesEx, which keeps tags unique across all its categories.

#include "framework/data/CPropertyEx.h"

#include <boost/shared_ptr.hpp>

#include <string>
#include <vector>

namespace XimoGis::Data {

class CPropertyCategoryEx {
public:
    explicit CPropertyCategoryEx(int order = 0, int nameMsg = 0, int descriptionMsg = 0);

    // The order identifies the category within its set and never changes.
    int GetOrder() const { return m_order; }
    int GetNameMsg() const { return m_nameMsg; }
    void SetNameMsg(int msg) { m_nameMsg = msg; }
    int GetDescriptionMsg() const { return m_descriptionMsg; }
    void SetDescriptionMsg(int msg) { m_descriptionMsg = msg; }

    // In ascending order of the properties' orders.
    const std::vector<boost::shared_ptr<CPropertyEx>>& GetProperties() const { return m_properties; }
    boost::shared_ptr<CPropertyEx> GetProperty(const std::wstring& tag) const;
    // Highest order of the category's properties; 0 when it has none, so the first property gets 1.
    int GetHighestOrder() const;

    // Compares the categories and their properties by value.
    bool operator==(const CPropertyCategoryEx& other) const;

private:
    friend class CPropertiesEx;

    // Places the property by its order; an equal order goes after the ones already there.
    void Insert(const boost::shared_ptr<CPropertyEx>& property, int order);
    bool Remove(const std::wstring& tag);
    boost::shared_ptr<CPropertyCategoryEx> MakeDeepCopy() const;

    int m_order = 0;
    int m_nameMsg = 0;
    int m_descriptionMsg = 0;
    std::vector<boost::shared_ptr<CPropertyEx>> m_properties;
};

}  // namespace XimoGis::Data
