#pragma once
// A property set: ordered categories of tagged properties. Definitions and components keep their
// settings in one; drawing code reads each setting with a default for the case that the tag is
// missing, so sets written by older versions still draw.

#include "framework/data/CPropertyCategoryEx.h"
#include "framework/data/CPropertyEx.h"

#include <boost/shared_ptr.hpp>
#include <pugixml.hpp>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace XimoGis::Data {

class CPropertiesEx {
public:
    CPropertiesEx() = default;
    // A member-wise copy would share the properties; MakeDeepCopy is the copy.
    CPropertiesEx(const CPropertiesEx&) = delete;
    CPropertiesEx& operator=(const CPropertiesEx&) = delete;

    // Adds a category; an empty pointer when the set already has one with this order.
    boost::shared_ptr<CPropertyCategoryEx> AddCategory(int order, int nameMsg, int descriptionMsg);
    boost::shared_ptr<CPropertyCategoryEx> GetCategory(int order) const;
    // In ascending order.
    const std::vector<boost::shared_ptr<CPropertyCategoryEx>>& GetCategories() const { return m_categories; }
    bool RemoveCategory(int order);

    // Adds the property to the category with order = the category's highest order + 1. Returns the
    // property, or an empty pointer (and adds nothing) when the category does not exist, the
    // property is null, its tag is empty or the set already holds that tag.
    boost::shared_ptr<CPropertyEx> AddProperty(int categoryOrder, const boost::shared_ptr<CPropertyEx>& property);
    // As AddProperty, but with the given order (readers restoring a stored set use it).
    boost::shared_ptr<CPropertyEx> InsertProperty(int categoryOrder, const boost::shared_ptr<CPropertyEx>& property,
                                                  int order);
    boost::shared_ptr<CPropertyEx> GetProperty(const std::wstring& tag) const;
    bool RemoveProperty(const std::wstring& tag);
    std::size_t GetPropertyCount() const;
    bool IsEmpty() const { return m_categories.empty(); }

    // Typed reads. `flag` picks the value read: 0 the shown value, any other the hidden value (or the
    // shown value when the hidden one is null); drawing code reads with 1. A missing tag, a null
    // value or text that is not a number gives `defaultValue`. Integer reads cut a decimal value
    // towards zero.
    double GetDblProperty(const std::wstring& tag, double defaultValue, int flag) const;
    int GetIntProperty(const std::wstring& tag, int defaultValue, int flag) const;
    long GetLngProperty(const std::wstring& tag, long defaultValue, int flag) const;
    std::wstring GetStrProperty(const std::wstring& tag, const std::wstring& defaultValue, int flag) const;

    // Sets the value as CPropertyEx::SetValue does and applies the property's dependency rule;
    // false for an unknown tag.
    bool SetPropertyValue(const std::wstring& tag, const CPropertyValue& value);
    // Enables and disables the properties that the current value of `tag` names in its rule; tags
    // the set does not hold are passed over. False for an unknown tag.
    bool ApplyDependencies(const std::wstring& tag);
    // Applies every rule, in category and property order (a later rule wins for a tag named by two);
    // builders call it once the set is complete so the enabled states match the values.
    void ApplyAllDependencies();

    // Replaces the target's content with copies of this set's categories and properties; the two
    // sets share nothing afterwards.
    void MakeDeepCopy(CPropertiesEx& target) const;

    // The set as one "ppsEx" element (see CPropertiesExXml for its form).
    std::wstring GetXML() const;
    void WriteXmlNode(pugi::xml_node parent) const;
    // Reads a document whose root is "ppsEx". On any fault returns false, leaves this set as it was
    // and, when `error` is given, says what is wrong.
    bool ParseXML(const wchar_t* xml, std::wstring* error = nullptr);
    bool ReadXmlNode(const pugi::xml_node& node, std::wstring* error = nullptr);

    // Compares categories and properties by value.
    bool operator==(const CPropertiesEx& other) const;

private:
    std::vector<boost::shared_ptr<CPropertyCategoryEx>> m_categories;
};

}  // namespace XimoGis::Data
