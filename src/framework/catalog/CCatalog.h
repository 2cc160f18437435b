#pragma once
// A named catalog: a tree of items and the item templates by item type. Items are created only
// through the catalog, from the template of their type, so every item of a type starts with the
// same properties; ids are unique within the catalog, and only groups hold other items.
//
// A new catalog holds the framework's standard templates (see CCatalogItemTemplate).

#include "framework/catalog/CCatalogItem.h"
#include "framework/catalog/CCatalogItemTemplate.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace XimoGis::Data {

class CCatalog {
public:
    explicit CCatalog(std::wstring name);
    CCatalog(const CCatalog&) = delete;
    CCatalog& operator=(const CCatalog&) = delete;

    const std::wstring& GetName() const { return m_name; }

    // Empty pointer when the catalog has no template of that type.
    boost::shared_ptr<CCatalogItemTemplate> GetItemTemplate(const std::wstring& itemType) const;
    const std::map<std::wstring, boost::shared_ptr<CCatalogItemTemplate>>& GetItemTemplates() const {
        return m_templates;
    }
    // Adds the template, or replaces the one of the same item type; items made before keep the
    // properties they have.
    void SetItemTemplate(const boost::shared_ptr<CCatalogItemTemplate>& itemTemplate);

    // The items at the root, in order.
    const std::vector<boost::shared_ptr<CCatalogItem>>& GetRootItems() const { return m_roots; }
    // Null when the catalog has no item with this id.
    CCatalogItem* GetItem(const std::wstring& id) const;
    std::size_t GetItemCount() const { return m_index.size(); }
    // Every item, each parent before its children, children in their order.
    std::vector<CCatalogItem*> GetItemsInTreeOrder() const;

    // Appends a new item to the children of `parent` (to the root when null). It gets a copy of the
    // properties of the template of `itemType`, or none when there is no such template. An empty
    // id gets a new GUID. Null, with the reason in `error`, when the id is taken, the name is
    // empty, or the parent is not a group of this catalog.
    CCatalogItem* AddItem(CCatalogItem* parent, const std::wstring& id, const std::wstring& name, bool isGroup,
                          const std::wstring& itemType, std::wstring& error);
    // Removes the item with everything below it; false when it is not an item of this catalog.
    bool RemoveItem(CCatalogItem* item);
    // Moves the item, with everything below it, to `position` among the children of `newParent`
    // (the root when null); a position past the end appends. Fails when the new parent is not a
    // group of this catalog or lies below the item.
    bool MoveItem(CCatalogItem* item, CCatalogItem* newParent, std::size_t position, std::wstring& error);

    // Compares names, templates and the item trees with their properties.
    bool operator==(const CCatalog& other) const;

private:
    bool IsOwnItem(const CCatalogItem* item) const;
    std::vector<boost::shared_ptr<CCatalogItem>>& ChildrenOf(CCatalogItem* parent);
    bool CheckParent(const CCatalogItem* parent, std::wstring& error) const;
    void Unindex(const CCatalogItem& item);

    std::wstring m_name;
    std::map<std::wstring, boost::shared_ptr<CCatalogItemTemplate>> m_templates;
    std::vector<boost::shared_ptr<CCatalogItem>> m_roots;
    std::map<std::wstring, CCatalogItem*> m_index;
};

}  // namespace XimoGis::Data
