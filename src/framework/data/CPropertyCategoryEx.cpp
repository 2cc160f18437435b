#include "framework/data/CPropertyCategoryEx.h"

#include <boost/make_shared.hpp>

#include <algorithm>

namespace XimoGis::Data {

CPropertyCategoryEx::CPropertyCategoryEx(int order, int nameMsg, int descriptionMsg)
    : m_order(order), m_nameMsg(nameMsg), m_descriptionMsg(descriptionMsg) {}

boost::shared_ptr<CPropertyEx> CPropertyCategoryEx::GetProperty(const std::wstring& tag) const {
    for (const auto& property : m_properties)
        if (property->GetTag() == tag) return property;
    return {};
}

int CPropertyCategoryEx::GetHighestOrder() const {
    return m_properties.empty() ? 0 : m_properties.back()->GetOrder();
}

bool CPropertyCategoryEx::operator==(const CPropertyCategoryEx& other) const {
    return m_order == other.m_order && m_nameMsg == other.m_nameMsg && m_descriptionMsg == other.m_descriptionMsg &&
           std::equal(m_properties.begin(), m_properties.end(), other.m_properties.begin(), other.m_properties.end(),
                      [](const auto& a, const auto& b) { return *a == *b; });
}

void CPropertyCategoryEx::Insert(const boost::shared_ptr<CPropertyEx>& property, int order) {
    property->m_order = order;
    const auto at = std::upper_bound(m_properties.begin(), m_properties.end(), order,
                                     [](int value, const auto& p) { return value < p->GetOrder(); });
    m_properties.insert(at, property);
}

bool CPropertyCategoryEx::Remove(const std::wstring& tag) {
    const auto at = std::find_if(m_properties.begin(), m_properties.end(),
                                 [&](const auto& p) { return p->GetTag() == tag; });
    if (at == m_properties.end()) return false;
    m_properties.erase(at);
    return true;
}

boost::shared_ptr<CPropertyCategoryEx> CPropertyCategoryEx::MakeDeepCopy() const {
    auto copy = boost::make_shared<CPropertyCategoryEx>(m_order, m_nameMsg, m_descriptionMsg);
    copy->m_properties.reserve(m_properties.size());
    for (const auto& property : m_properties) copy->m_properties.push_back(boost::make_shared<CPropertyEx>(*property));
    return copy;
}

}  // namespace XimoGis::Data
