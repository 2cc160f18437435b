#include "framework/catalog/CCatalogManager.h"

#include "framework/catalog/CCatalogTables.h"
#include "framework/catalog/CCatalogXml.h"
#include "framework/config/CModuleConfiguration.h"
#include "framework/utility/CFilePath.h"
#include "framework/workspace/CTransaction.h"
#include "framework/workspace/CWorkspaceStore.h"

namespace XimoGis::Data {

using Utility::CFilePath;
using Workspace::CTransaction;
using Workspace::CWorkspaceStore;

namespace {

boost::shared_ptr<CCatalog> ReadFromStore(const std::wstring& workspaceFolder, const std::wstring& name, bool& stored,
                                          std::wstring& error) {
    CWorkspaceStore store;
    if (!store.Open(CWorkspaceStore::PathInWorkspace(workspaceFolder), CWorkspaceStore::omReadOnly, error)) return {};
    return CCatalogTables::Load(store, name, stored, error);
}

bool WriteToStore(const std::wstring& workspaceFolder, const CCatalog& catalog, std::wstring& error) {
    CWorkspaceStore store;
    if (!store.Open(CWorkspaceStore::PathInWorkspace(workspaceFolder), CWorkspaceStore::omReadWrite, error))
        return false;
    CTransaction transaction(store);
    if (!transaction.IsActive()) {
        error = transaction.GetError();
        return false;
    }
    return CCatalogTables::Replace(store, catalog, error) && transaction.Commit(error);
}

}  // namespace

CCatalogManager* CCatalogManager::Instance() {
    static CCatalogManager instance;
    return &instance;
}

void CCatalogManager::FollowWorkspace() {
    const std::wstring& workspace = CModuleConfiguration::Instance()->GetWorkspacePath();
    if (workspace == m_workspace) return;
    m_catalogs.clear();
    m_workspace = workspace;
}

CCatalog* CCatalogManager::GetCatalog(const std::wstring& name, std::wstring& error) {
    FollowWorkspace();
    if (m_workspace.empty()) {
        error = L"Catalog \"" + name + L"\": no workspace is open";
        return nullptr;
    }
    const auto found = m_catalogs.find(name);
    if (found != m_catalogs.end()) return found->second.get();
    if (name.empty()) {
        error = L"No catalog name given";
        return nullptr;
    }
    bool stored = false;
    const auto catalog = ReadFromStore(m_workspace, name, stored, error);
    if (!catalog) return nullptr;
    m_catalogs[name] = catalog;
    return catalog.get();
}

CCatalog* CCatalogManager::GetCatalog(const std::wstring& name) {
    std::wstring ignored;
    return GetCatalog(name, ignored);
}

CCatalogItem* CCatalogManager::GetCatalogItem(const std::wstring& catalog, const std::wstring& id) {
    const CCatalog* found = GetCatalog(catalog);
    return found ? found->GetItem(id) : nullptr;
}

bool CCatalogManager::SaveCatalog(const std::wstring& name, std::wstring& error) {
    const CCatalog* catalog = GetCatalog(name, error);
    return catalog && WriteToStore(m_workspace, *catalog, error);
}

void CCatalogManager::DiscardCatalogs() { m_catalogs.clear(); }

bool CCatalogManager::ImportCatalog(const std::wstring& workspaceFolder, const std::wstring& sourceFile,
                                    std::wstring& error, std::wstring* name) {
    const auto catalog = CCatalogXml::Read(sourceFile, error);
    if (!catalog || !WriteToStore(workspaceFolder, *catalog, error)) return false;
    // A copy read before the import is out of date.
    FollowWorkspace();
    if (CFilePath::AsFolder(CFilePath::Resolve(workspaceFolder, L"")) == m_workspace)
        m_catalogs.erase(catalog->GetName());
    if (name) *name = catalog->GetName();
    return true;
}

bool CCatalogManager::ExportCatalog(const std::wstring& workspaceFolder, const std::wstring& name,
                                    const std::wstring& targetFile, std::wstring& error) {
    bool stored = false;
    const auto catalog = ReadFromStore(workspaceFolder, name, stored, error);
    if (!catalog) return false;
    if (!stored) {
        error = L"Workspace store \"" + CWorkspaceStore::PathInWorkspace(workspaceFolder) + L"\": holds no catalog \"" +
                name + L"\"";
        return false;
    }
    return CCatalogXml::Write(*catalog, targetFile, error);
}

}  // namespace XimoGis::Data
