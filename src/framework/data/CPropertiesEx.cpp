#include "framework/data/CPropertiesEx.h"

#include "framework/data/CPropertiesExXml.h"
#include "framework/data/CXmlText.h"

#include <boost/make_shared.hpp>

#include <algorithm>

namespace XimoGis::Data {

boost::shared_ptr<CPropertyCategoryEx> CPropertiesEx::AddCategory(int order, int nameMsg, int descriptionMsg) {
    const auto at = std::lower_bound(m_categories.begin(), m_categories.end(), order,
                                     [](const auto& c, int value) { return c->GetOrder() < value; });
    if (at != m_categories.end() && (*at)->GetOrder() == order) return {};
    auto category = boost::make_shared<CPropertyCategoryEx>(order, nameMsg, descriptionMsg);
    m_categories.insert(at, category);
    return category;
}

boost::shared_ptr<CPropertyCategoryEx> CPropertiesEx::GetCategory(int order) const {
    for (const auto& category : m_categories)
        if (category->GetOrder() == order) return category;
    return {};
}

bool CPropertiesEx::RemoveCategory(int order) {
    const auto at = std::find_if(m_categories.begin(), m_categories.end(),
                                 [&](const auto& c) { return c->GetOrder() == order; });
    if (at == m_categories.end()) return false;
    m_categories.erase(at);
    return true;
}

boost::shared_ptr<CPropertyEx> CPropertiesEx::AddProperty(int categoryOrder,
                                                         const boost::shared_ptr<CPropertyEx>& property) {
    const auto category = GetCategory(categoryOrder);
    if (!category) return {};
    return InsertProperty(categoryOrder, property, category->GetHighestOrder() + 1);
}

boost::shared_ptr<CPropertyEx> CPropertiesEx::InsertProperty(int categoryOrder,
                                                            const boost::shared_ptr<CPropertyEx>& property,
                                                            int order) {
    const auto category = GetCategory(categoryOrder);
    if (!category || !property || property->GetTag().empty() || GetProperty(property->GetTag())) return {};
    category->Insert(property, order);
    return property;
}

boost::shared_ptr<CPropertyEx> CPropertiesEx::GetProperty(const std::wstring& tag) const {
    for (const auto& category : m_categories)
        if (auto property = category->GetProperty(tag)) return property;
    return {};
}

bool CPropertiesEx::RemoveProperty(const std::wstring& tag) {
    for (const auto& category : m_categories)
        if (category->Remove(tag)) return true;
    return false;
}

std::size_t CPropertiesEx::GetPropertyCount() const {
    std::size_t count = 0;
    for (const auto& category : m_categories) count += category->GetProperties().size();
    return count;
}

double CPropertiesEx::GetDblProperty(const std::wstring& tag, double defaultValue, int flag) const {
    const auto property = GetProperty(tag);
    double value = defaultValue;
    return property && property->GetValueFor(flag).ToDouble(value) ? value : defaultValue;
}

int CPropertiesEx::GetIntProperty(const std::wstring& tag, int defaultValue, int flag) const {
    const auto property = GetProperty(tag);
    int value = defaultValue;
    return property && property->GetValueFor(flag).ToInt(value) ? value : defaultValue;
}

long CPropertiesEx::GetLngProperty(const std::wstring& tag, long defaultValue, int flag) const {
    const auto property = GetProperty(tag);
    long value = defaultValue;
    return property && property->GetValueFor(flag).ToLong(value) ? value : defaultValue;
}

std::wstring CPropertiesEx::GetStrProperty(const std::wstring& tag, const std::wstring& defaultValue,
                                           int flag) const {
    const auto property = GetProperty(tag);
    if (!property || property->GetValueFor(flag).IsNull()) return defaultValue;
    return property->GetValueFor(flag).GetText();
}

bool CPropertiesEx::SetPropertyValue(const std::wstring& tag, const CPropertyValue& value) {
    const auto property = GetProperty(tag);
    if (!property) return false;
    property->SetValue(value);
    return ApplyDependencies(tag);
}

bool CPropertiesEx::ApplyDependencies(const std::wstring& tag) {
    const auto owner = GetProperty(tag);
    if (!owner) return false;
    for (const auto& [dependentTag, enabled] : owner->EvaluateDependency())
        if (const auto dependent = GetProperty(dependentTag)) dependent->SetEnabled(enabled);
    return true;
}

void CPropertiesEx::ApplyAllDependencies() {
    for (const auto& category : m_categories)
        for (const auto& property : category->GetProperties()) ApplyDependencies(property->GetTag());
}

void CPropertiesEx::MakeDeepCopy(CPropertiesEx& target) const {
    if (&target == this) return;
    std::vector<boost::shared_ptr<CPropertyCategoryEx>> copies;
    copies.reserve(m_categories.size());
    for (const auto& category : m_categories) copies.push_back(category->MakeDeepCopy());
    target.m_categories = std::move(copies);
}

std::wstring CPropertiesEx::GetXML() const {
    pugi::xml_document document;
    WriteXmlNode(document);
    return CXmlText::ToText(document.first_child());
}

void CPropertiesEx::WriteXmlNode(pugi::xml_node parent) const {
    CPropertiesExXml::Write(*this, parent);
}

bool CPropertiesEx::ParseXML(const wchar_t* xml, std::wstring* error) {
    pugi::xml_document document;
    if (!CXmlText::Load(xml, document, error)) return false;
    return ReadXmlNode(document.document_element(), error);
}

bool CPropertiesEx::ReadXmlNode(const pugi::xml_node& node, std::wstring* error) {
    // Read into a fresh set so that a fault half way leaves this one untouched.
    CPropertiesEx parsed;
    if (!CPropertiesExXml::Read(node, parsed, error)) return false;
    m_categories.swap(parsed.m_categories);
    return true;
}

bool CPropertiesEx::operator==(const CPropertiesEx& other) const {
    return std::equal(m_categories.begin(), m_categories.end(), other.m_categories.begin(), other.m_categories.end(),
                      [](const auto& a, const auto& b) { return *a == *b; });
}

}  // namespace XimoGis::Data
