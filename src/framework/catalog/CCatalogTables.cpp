#include "framework/catalog/CCatalogTables.h"

#include "framework/workspace/CStatement.h"
#include "framework/workspace/CWorkspaceStore.h"

#include <boost/make_shared.hpp>

#include <cstddef>
#include <map>
#include <optional>
#include <vector>

namespace XimoGis::Data {

using Workspace::CStatement;
using Workspace::CWorkspaceStore;

const char* const CCatalogTables::kCatalogsTable = "ximo_catalogs";
const char* const CCatalogTables::kTemplatesTable = "ximo_catalog_templates";
const char* const CCatalogTables::kItemsTable = "ximo_catalog_items";

namespace {

const char* const kCreateCatalogs = R"SQL(
CREATE TABLE ximo_catalogs (
  fid INTEGER PRIMARY KEY AUTOINCREMENT,
  name TEXT NOT NULL UNIQUE
))SQL";

const char* const kCreateTemplates = R"SQL(
CREATE TABLE ximo_catalog_templates (
  fid INTEGER PRIMARY KEY AUTOINCREMENT,
  catalog TEXT NOT NULL REFERENCES ximo_catalogs (name),
  item_type TEXT NOT NULL,
  properties TEXT NOT NULL,
  UNIQUE (catalog, item_type)
))SQL";

const char* const kCreateItems = R"SQL(
CREATE TABLE ximo_catalog_items (
  fid INTEGER PRIMARY KEY AUTOINCREMENT,
  catalog TEXT NOT NULL REFERENCES ximo_catalogs (name),
  item_id TEXT NOT NULL,
  parent_id TEXT,
  item_order INTEGER NOT NULL,
  name TEXT NOT NULL,
  is_group BOOLEAN NOT NULL CHECK (is_group IN (0, 1)),
  item_type TEXT NOT NULL,
  properties TEXT NOT NULL,
  UNIQUE (catalog, item_id)
))SQL";

struct ItemRow {
    std::wstring id;
    std::optional<std::wstring> parentId;
    std::wstring name;
    bool isGroup = false;
    std::wstring itemType;
    std::wstring properties;
};

class Loader {
public:
    Loader(const CWorkspaceStore& store, const std::wstring& name, std::wstring& error)
        : m_store(store), m_name(name), m_error(error) {}

    bool ReadTemplates(CCatalog& catalog) {
        CStatement query(m_store,
                         "SELECT item_type, properties FROM ximo_catalog_templates WHERE catalog = ? ORDER BY fid");
        query.Bind(1, m_name);
        while (query.Next()) {
            auto itemTemplate = boost::make_shared<CCatalogItemTemplate>(query.GetText(0));
            std::wstring why;
            if (!itemTemplate->GetProperties().ParseXML(query.GetText(1).c_str(), &why))
                return Fail(L"the template of item type \"" + itemTemplate->GetItemType() + L"\": " + why);
            catalog.SetItemTemplate(itemTemplate);
        }
        return !query.Failed() || Report(query.GetError());
    }

    bool ReadItems(CCatalog& catalog) {
        CStatement query(m_store,
                         "SELECT item_id, parent_id, name, is_group, item_type, properties FROM ximo_catalog_items "
                         "WHERE catalog = ? ORDER BY item_order, fid");
        query.Bind(1, m_name);
        std::size_t count = 0;
        while (query.Next()) {
            ItemRow row{query.GetText(0), std::nullopt, query.GetText(2), query.GetInt(3) != 0, query.GetText(4),
                        query.GetText(5)};
            if (!query.IsNull(1)) row.parentId = query.GetText(1);
            m_children[row.parentId].push_back(std::move(row));
            ++count;
        }
        if (query.Failed()) return Report(query.GetError());
        if (!AddChildren(catalog, nullptr)) return false;
        // Rows left over hang from an item that does not exist, or from one another in a ring.
        return catalog.GetItemCount() == count ||
               Fail(std::to_wstring(count - catalog.GetItemCount()) + L" items are not reachable from the root");
    }

private:
    bool AddChildren(CCatalog& catalog, CCatalogItem* parent) {
        const auto key = parent ? std::optional<std::wstring>(parent->GetId()) : std::nullopt;
        const auto found = m_children.find(key);
        if (found == m_children.end()) return true;
        for (const ItemRow& row : found->second) {
            std::wstring why;
            CCatalogItem* item = catalog.AddItem(parent, row.id, row.name, row.isGroup, row.itemType, why);
            if (!item) return Report(m_store.FormatError(why, false));  // names the catalog itself
            if (!item->GetProperties().ParseXML(row.properties.c_str(), &why))
                return Fail(L"item \"" + row.name + L"\" (" + row.id + L"): " + why);
            if (!AddChildren(catalog, item)) return false;
        }
        return true;
    }

    bool Fail(const std::wstring& what) {
        return Report(m_store.FormatError(L"catalog \"" + m_name + L"\": " + what, false));
    }
    bool Report(const std::wstring& error) {
        m_error = error;
        return false;
    }

    const CWorkspaceStore& m_store;
    const std::wstring& m_name;
    std::wstring& m_error;
    std::map<std::optional<std::wstring>, std::vector<ItemRow>> m_children;
};

bool InsertItems(CStatement& insert, const CCatalog& catalog, const CCatalogItem* parent,
                 const std::vector<boost::shared_ptr<CCatalogItem>>& items, std::wstring& error) {
    for (std::size_t order = 0; order < items.size(); ++order) {
        const CCatalogItem& item = *items[order];
        insert.Reset(true);
        insert.Bind(1, catalog.GetName()).Bind(2, item.GetId());
        if (parent)
            insert.Bind(3, parent->GetId());
        else
            insert.BindNull(3);
        insert.Bind(4, static_cast<int>(order))
            .Bind(5, item.GetName())
            .Bind(6, item.IsGroup() ? 1 : 0)
            .Bind(7, item.GetItemType())
            .Bind(8, item.GetProperties().GetXML());
        if (!insert.Execute(error) || !InsertItems(insert, catalog, &item, item.GetChildren(), error)) return false;
    }
    return true;
}

}  // namespace

bool CCatalogTables::Ensure(CWorkspaceStore& store, std::wstring& error) {
    return store.EnsureAttributeTable(kCatalogsTable, kCreateCatalogs, L"Catalogs of the workspace", error) &&
           store.EnsureAttributeTable(kTemplatesTable, kCreateTemplates, L"Item templates of the catalogs", error) &&
           store.EnsureAttributeTable(kItemsTable, kCreateItems, L"Items of the catalogs", error);
}

boost::shared_ptr<CCatalog> CCatalogTables::Load(const CWorkspaceStore& store, const std::wstring& name, bool& stored,
                                                 std::wstring& error) {
    auto catalog = boost::make_shared<CCatalog>(name);
    stored = false;
    if (!store.HasTable(kCatalogsTable)) return catalog;
    {
        CStatement query(store, "SELECT 1 FROM ximo_catalogs WHERE name = ?");
        query.Bind(1, name);
        stored = query.Next();
        if (query.Failed()) {
            error = query.GetError();
            return {};
        }
    }
    if (!stored) return catalog;
    if (!store.HasTable(kTemplatesTable) || !store.HasTable(kItemsTable)) {
        error = store.FormatError(L"the catalog tables are incomplete", false);
        return {};
    }
    Loader loader(store, name, error);
    if (!loader.ReadTemplates(*catalog) || !loader.ReadItems(*catalog)) return {};
    return catalog;
}

bool CCatalogTables::Replace(CWorkspaceStore& store, const CCatalog& catalog, std::wstring& error) {
    if (!Ensure(store, error)) return false;
    CStatement addCatalog(store, "INSERT OR IGNORE INTO ximo_catalogs (name) VALUES (?)");
    addCatalog.Bind(1, catalog.GetName());
    CStatement clearTemplates(store, "DELETE FROM ximo_catalog_templates WHERE catalog = ?");
    clearTemplates.Bind(1, catalog.GetName());
    CStatement clearItems(store, "DELETE FROM ximo_catalog_items WHERE catalog = ?");
    clearItems.Bind(1, catalog.GetName());
    if (!addCatalog.Execute(error) || !clearTemplates.Execute(error) || !clearItems.Execute(error)) return false;

    CStatement addTemplate(store,
                           "INSERT INTO ximo_catalog_templates (catalog, item_type, properties) VALUES (?, ?, ?)");
    for (const auto& [itemType, itemTemplate] : catalog.GetItemTemplates()) {
        addTemplate.Reset(true);
        addTemplate.Bind(1, catalog.GetName()).Bind(2, itemType).Bind(3, itemTemplate->GetProperties().GetXML());
        if (!addTemplate.Execute(error)) return false;
    }
    CStatement addItem(store,
                       "INSERT INTO ximo_catalog_items "
                       "(catalog, item_id, parent_id, item_order, name, is_group, item_type, properties) "
                       "VALUES (?, ?, ?, ?, ?, ?, ?, ?)");
    return InsertItems(addItem, catalog, nullptr, catalog.GetRootItems(), error) &&
           store.TouchContents(kCatalogsTable, error) && store.TouchContents(kTemplatesTable, error) &&
           store.TouchContents(kItemsTable, error);
}

}  // namespace XimoGis::Data
