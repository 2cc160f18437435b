#include "framework/catalog/CCatalogItem.h"

#include <algorithm>

namespace XimoGis::Data {

CCatalogItem::CCatalogItem(std::wstring id, std::wstring name, bool isGroup, std::wstring itemType)
    : m_id(std::move(id)), m_name(std::move(name)), m_isGroup(isGroup), m_itemType(std::move(itemType)) {}

bool CCatalogItem::IsAncestorOf(const CCatalogItem* item) const {
    for (const CCatalogItem* up = item ? item->m_parent : nullptr; up; up = up->m_parent) {
        if (up == this) return true;
    }
    return false;
}

bool CCatalogItem::operator==(const CCatalogItem& other) const {
    return m_id == other.m_id && m_name == other.m_name && m_isGroup == other.m_isGroup &&
           m_itemType == other.m_itemType && m_properties == other.m_properties &&
           std::equal(m_children.begin(), m_children.end(), other.m_children.begin(), other.m_children.end(),
                      [](const auto& a, const auto& b) { return *a == *b; });
}

}  // namespace XimoGis::Data
