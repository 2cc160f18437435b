#pragma once
// The catalogs of the open workspace (the module configuration's workspace folder), kept in its
// store (see CCatalogTables). A catalog is read on first use and kept in memory; changes reach
// the store only through SaveCatalog, which writes the whole catalog in one transaction. When
// the module configuration opens another workspace, the catalogs read before are dropped.
//
// Catalogs also travel as text (CCatalogXml): ImportCatalog puts a catalog file into a
// workspace's store, ExportCatalog writes a stored catalog to a file.

#include "framework/catalog/CCatalog.h"

#include <boost/shared_ptr.hpp>

#include <map>
#include <string>

namespace XimoGis::Data {

class CCatalogManager {
public:
    static CCatalogManager* Instance();

    // The catalog `name`; one that the store does not hold yet is created empty (with the
    // standard item templates) and is stored when it is saved. Null, with `error` naming the file
    // and what is wrong, when no workspace is open or its store is missing or cannot be read.
    CCatalog* GetCatalog(const std::wstring& name, std::wstring& error);
    CCatalog* GetCatalog(const std::wstring& name);
    // Null when the catalog cannot be read or has no item with this id.
    CCatalogItem* GetCatalogItem(const std::wstring& catalog, const std::wstring& id);
    // Writes the catalog as it is in memory over its stored form. A catalog not read yet is read
    // and written back. On failure the store is left as it was.
    bool SaveCatalog(const std::wstring& name, std::wstring& error);
    // Forgets the catalogs read so far, unsaved changes included; the next use reads the store.
    void DiscardCatalogs();

    // Reads the catalog file and replaces the catalog of the same name in the store of the
    // workspace in `workspaceFolder` (the store must exist), in one transaction; nothing is
    // written when the file or the store is faulty. Returns the catalog's name in `name` when given.
    bool ImportCatalog(const std::wstring& workspaceFolder, const std::wstring& sourceFile, std::wstring& error,
                       std::wstring* name = nullptr);
    // Writes the stored catalog `name` of that workspace to `targetFile`; fails when the store
    // does not hold it.
    static bool ExportCatalog(const std::wstring& workspaceFolder, const std::wstring& name,
                              const std::wstring& targetFile, std::wstring& error);

    CCatalogManager(const CCatalogManager&) = delete;
    CCatalogManager& operator=(const CCatalogManager&) = delete;

private:
    CCatalogManager() = default;
    // Drops the catalogs read when the configuration's workspace is no longer theirs.
    void FollowWorkspace();

    std::wstring m_workspace;
    std::map<std::wstring, boost::shared_ptr<CCatalog>> m_catalogs;
};

}  // namespace XimoGis::Data
