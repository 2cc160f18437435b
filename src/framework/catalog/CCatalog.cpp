#include "framework/catalog/CCatalog.h"

#include "framework/utility/CUtility.h"

#include <boost/make_shared.hpp>

#include <algorithm>

namespace XimoGis::Data {

namespace {

std::wstring Describe(const CCatalogItem& item) { return L"item \"" + item.GetName() + L"\" (" + item.GetId() + L")"; }

void CollectInTreeOrder(const std::vector<boost::shared_ptr<CCatalogItem>>& items, std::vector<CCatalogItem*>& out) {
    for (const auto& item : items) {
        out.push_back(item.get());
        CollectInTreeOrder(item->GetChildren(), out);
    }
}

}  // namespace

CCatalog::CCatalog(std::wstring name) : m_name(std::move(name)) {
    SetItemTemplate(CCatalogItemTemplate::CreateElementBlock());
}

boost::shared_ptr<CCatalogItemTemplate> CCatalog::GetItemTemplate(const std::wstring& itemType) const {
    const auto found = m_templates.find(itemType);
    return found == m_templates.end() ? boost::shared_ptr<CCatalogItemTemplate>() : found->second;
}

void CCatalog::SetItemTemplate(const boost::shared_ptr<CCatalogItemTemplate>& itemTemplate) {
    if (itemTemplate) m_templates[itemTemplate->GetItemType()] = itemTemplate;
}

CCatalogItem* CCatalog::GetItem(const std::wstring& id) const {
    const auto found = m_index.find(id);
    return found == m_index.end() ? nullptr : found->second;
}

std::vector<CCatalogItem*> CCatalog::GetItemsInTreeOrder() const {
    std::vector<CCatalogItem*> items;
    items.reserve(m_index.size());
    CollectInTreeOrder(m_roots, items);
    return items;
}

bool CCatalog::IsOwnItem(const CCatalogItem* item) const { return item && GetItem(item->GetId()) == item; }

std::vector<boost::shared_ptr<CCatalogItem>>& CCatalog::ChildrenOf(CCatalogItem* parent) {
    return parent ? parent->m_children : m_roots;
}

bool CCatalog::CheckParent(const CCatalogItem* parent, std::wstring& error) const {
    if (!parent) return true;
    if (!IsOwnItem(parent)) {
        error = L"Catalog \"" + m_name + L"\": the parent given is not an item of this catalog";
        return false;
    }
    if (!parent->IsGroup()) {
        error = L"Catalog \"" + m_name + L"\": " + Describe(*parent) + L" is not a group and cannot hold items";
        return false;
    }
    return true;
}

CCatalogItem* CCatalog::AddItem(CCatalogItem* parent, const std::wstring& id, const std::wstring& name, bool isGroup,
                                const std::wstring& itemType, std::wstring& error) {
    if (!CheckParent(parent, error)) return nullptr;
    if (name.empty()) {
        error = L"Catalog \"" + m_name + L"\": an item needs a name";
        return nullptr;
    }
    const std::wstring itemId = id.empty() ? Utility::CUtility::CreateGUID() : id;
    if (const CCatalogItem* taken = GetItem(itemId)) {
        error = L"Catalog \"" + m_name + L"\": the id " + itemId + L" is taken by " + Describe(*taken);
        return nullptr;
    }
    auto item = boost::make_shared<CCatalogItem>(itemId, name, isGroup, itemType);
    if (const auto itemTemplate = GetItemTemplate(itemType))
        itemTemplate->GetProperties().MakeDeepCopy(item->m_properties);
    item->m_parent = parent;
    ChildrenOf(parent).push_back(item);
    m_index[itemId] = item.get();
    return item.get();
}

void CCatalog::Unindex(const CCatalogItem& item) {
    m_index.erase(item.GetId());
    for (const auto& child : item.GetChildren()) Unindex(*child);
}

bool CCatalog::RemoveItem(CCatalogItem* item) {
    if (!IsOwnItem(item)) return false;
    auto& siblings = ChildrenOf(item->m_parent);
    const auto found =
        std::find_if(siblings.begin(), siblings.end(), [item](const auto& sibling) { return sibling.get() == item; });
    Unindex(*item);
    siblings.erase(found);  // releases the item and its subtree: `item` dangles from here on
    return true;
}

bool CCatalog::MoveItem(CCatalogItem* item, CCatalogItem* newParent, std::size_t position, std::wstring& error) {
    if (!IsOwnItem(item)) {
        error = L"Catalog \"" + m_name + L"\": the item to move is not an item of this catalog";
        return false;
    }
    if (!CheckParent(newParent, error)) return false;
    if (newParent == item || item->IsAncestorOf(newParent)) {
        error = L"Catalog \"" + m_name + L"\": " + Describe(*item) + L" cannot be moved below itself";
        return false;
    }
    auto& from = ChildrenOf(item->m_parent);
    const auto found =
        std::find_if(from.begin(), from.end(), [item](const auto& sibling) { return sibling.get() == item; });
    const boost::shared_ptr<CCatalogItem> keep = *found;
    from.erase(found);
    auto& to = ChildrenOf(newParent);
    to.insert(to.begin() + static_cast<std::ptrdiff_t>(std::min(position, to.size())), keep);
    item->m_parent = newParent;
    return true;
}

bool CCatalog::operator==(const CCatalog& other) const {
    const auto sameTemplate = [](const auto& a, const auto& b) { return a.first == b.first && *a.second == *b.second; };
    const auto sameItem = [](const auto& a, const auto& b) { return *a == *b; };
    return m_name == other.m_name &&
           std::equal(m_templates.begin(), m_templates.end(), other.m_templates.begin(), other.m_templates.end(),
                      sameTemplate) &&
           std::equal(m_roots.begin(), m_roots.end(), other.m_roots.begin(), other.m_roots.end(), sameItem);
}

}  // namespace XimoGis::Data
