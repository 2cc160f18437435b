#pragma once
// The catalogs in the workspace store, as three attribute tables that QGIS lists:
//   ximo_catalogs           (fid, name UNIQUE): one row per catalog, also for an empty one
//   ximo_catalog_templates  (fid, catalog, item_type, properties), UNIQUE (catalog, item_type)
//   ximo_catalog_items      (fid, catalog, item_id, parent_id, item_order, name, is_group,
//                            item_type, properties), UNIQUE (catalog, item_id)
// parent_id is NULL for items at the root; item_order is the 0-based position among the siblings;
// is_group is a GeoPackage boolean (0/1). "properties" holds the property set as its "ppsEx" XML
// (see CPropertiesExXml), so an item reads back exactly as it was saved.
// The writer expects to run inside the caller's transaction.

#include "framework/catalog/CCatalog.h"

#include <boost/shared_ptr.hpp>

#include <string>

namespace XimoGis::Workspace {
class CWorkspaceStore;
}

namespace XimoGis::Data {

class CCatalogTables {
public:
    static const char* const kCatalogsTable;
    static const char* const kTemplatesTable;
    static const char* const kItemsTable;

    static bool Ensure(Workspace::CWorkspaceStore& store, std::wstring& error);
    // Reads the catalog `name`. A store without it gives a new empty catalog and `stored` false.
    // On a fault: an empty pointer and `error` naming the store, the catalog and what is wrong.
    static boost::shared_ptr<CCatalog> Load(const Workspace::CWorkspaceStore& store, const std::wstring& name,
                                            bool& stored, std::wstring& error);
    // Replaces the stored form of the catalog of the same name by `catalog`.
    static bool Replace(Workspace::CWorkspaceStore& store, const CCatalog& catalog, std::wstring& error);
};

}  // namespace XimoGis::Data
