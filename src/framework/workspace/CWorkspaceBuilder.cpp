#include "framework/workspace/CWorkspaceBuilder.h"

#include "framework/systems/CGisSystem.h"
#include "framework/systems/CSystemTables.h"
#include "framework/topology/CNetworkImport.h"
#include "framework/utility/CAtomicFile.h"
#include "framework/utility/CFilePath.h"
#include "framework/utility/CUtility.h"
#include "framework/workspace/CTransaction.h"
#include "framework/workspace/CWorkspaceSource.h"
#include "framework/workspace/CWorkspaceStore.h"
#include "host/base/AcString.h"

#include <filesystem>

namespace XimoGis::Workspace {

namespace fs = std::filesystem;
using Utility::CFilePath;

namespace {

const char* const kEmptyConfiguration =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<workspace name=\"Workspace\" language=\"en\">\n"
    "  <paths install=\"install\" support=\"support\"/>\n</workspace>\n";

std::wstring Describe(const fs::path& path, const std::error_code& ec) {
    return L"\"" + CFilePath::ToText(path) + L"\": " + acutUtf8ToWchar(ec.message());
}

bool CopyFolder(const fs::path& from, const fs::path& to, std::wstring& error) {
    std::error_code ec;
    if (!fs::exists(from, ec)) return true;
    fs::copy(from, to, fs::copy_options::recursive, ec);
    if (ec) error = L"Cannot copy the workspace sources from " + Describe(from, ec);
    return !ec;
}

bool WriteSystems(const std::wstring& folder, const std::vector<CWorkspaceSystemSource>& systems,
                  std::wstring& error) {
    CWorkspaceStore store;
    if (!store.Open(CWorkspaceStore::PathInWorkspace(folder), CWorkspaceStore::omCreate, error)) return false;
    CTransaction transaction(store);
    if (!transaction.IsActive()) {
        error = transaction.GetError();
        return false;
    }
    if (!System::CSystemTables::Ensure(store, error)) return false;
    int active = 0;
    for (const CWorkspaceSystemSource& source : systems) {
        const System::CGisSystem system(source.id, source.name, source.topologyType, source.layers, folder);
        if (!System::CSystemTables::Insert(store, system, error)) return false;
        if (source.active) active = source.id;
    }
    return System::CSystemTables::SetActive(store, active, error) && transaction.Commit(error);
}

}  // namespace

std::wstring CWorkspaceBuilder::GetDemoSourceFolder() {
    return CFilePath::AsFolder(CFilePath::Resolve(L"demo", CFilePath::AsFolder(acutUtf8ToWchar(XIMO_DATA_DIR))));
}

bool CWorkspaceBuilder::Fill(const std::wstring& folder, const std::wstring& sourceFolder,
                             const std::vector<Step>& steps, std::wstring& error) {
    std::vector<CWorkspaceSystemSource> systems;
    std::string configuration = kEmptyConfiguration;
    if (!sourceFolder.empty()) {
        const std::wstring source = CFilePath::AsFolder(sourceFolder);
        if (!CFilePath::ReadFile(source + L"workspace.xml", configuration)) {
            error = L"Workspace source \"" + source + L"workspace.xml\": the file cannot be read";
            return false;
        }
        if (!CWorkspaceSource::ReadSystems(source, systems, error) ||
            !CopyFolder(CFilePath::ToPath(source + L"systems"), CFilePath::ToPath(folder + L"systems"), error))
            return false;
    }
    std::error_code ec;
    for (const char* sub : {"install", "support", "logs"}) fs::create_directories(CFilePath::ToPath(folder) / sub, ec);
    if (!Utility::CAtomicFile::Write(folder + L"workspace.xml", configuration, error) ||
        !WriteSystems(folder, systems, error))
        return false;
    for (const CWorkspaceSystemSource& source : systems) {
        if (source.nodesFile.empty()) continue;
        const System::CGisSystem system(source.id, source.name, source.topologyType, source.layers, folder);
        if (!Topology::CNetworkImport::Import(system, source.nodesFile, source.sectionsFile, error)) return false;
    }
    for (const Step& step : steps) {
        if (step && !step(folder, error)) return false;
    }
    return true;
}

bool CWorkspaceBuilder::Build(const std::wstring& folder, const std::wstring& sourceFolder,
                              const std::vector<Step>& steps, std::wstring& error) {
    if (folder.empty()) {
        error = L"No workspace folder given";
        return false;
    }
    const fs::path target = CFilePath::ToPath(CFilePath::Resolve(folder, L"")).lexically_normal();
    const fs::path parent = target.parent_path();
    const std::string name = target.filename().string();
    std::error_code ec;
    if (fs::exists(target, ec)) {
        if (!fs::is_directory(target, ec)) {
            error = L"Workspace \"" + CFilePath::ToText(target) + L"\" is a file, not a folder";
            return false;
        }
        if (!fs::is_empty(target, ec) && !fs::exists(target / "workspace.xml", ec)) {
            error = L"Folder \"" + CFilePath::ToText(target) + L"\" holds files but no workspace.xml; it is not replaced";
            return false;
        }
    }
    const std::string tag = acutWcharToUtf8(Utility::CUtility::CreateGUID()).substr(1, 8);
    const fs::path building = parent / ("." + name + ".new-" + tag);
    fs::create_directories(building, ec);
    if (ec) {
        error = L"Cannot make the folder " + Describe(building, ec);
        return false;
    }
    if (!Fill(CFilePath::AsFolder(CFilePath::ToText(building)), sourceFolder, steps, error)) {
        fs::remove_all(building, ec);
        return false;
    }
    const fs::path old = parent / ("." + name + ".old-" + tag);
    const bool replacing = fs::exists(target, ec);
    if (replacing) fs::rename(target, old, ec);
    if (!ec) fs::rename(building, target, ec);
    if (ec) {
        error = L"Cannot put the new workspace in place of " + Describe(target, ec);
        std::error_code ignored;
        if (replacing && !fs::exists(target, ignored)) fs::rename(old, target, ignored);
        fs::remove_all(building, ignored);
        return false;
    }
    if (replacing) fs::remove_all(old, ec);
    return true;
}

}  // namespace XimoGis::Workspace
