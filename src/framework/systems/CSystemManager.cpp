#include "framework/systems/CSystemManager.h"

#include "framework/config/CModuleConfiguration.h"
#include "framework/notification/CNotificationFramework.h"
#include "framework/systems/CSystemTables.h"
#include "framework/utility/CFilePath.h"
#include "framework/utility/CUtility.h"
#include "framework/workspace/CTransaction.h"
#include "framework/workspace/CWorkspaceStore.h"
#include "host/base/AcString.h"

#include <boost/make_shared.hpp>

#include <filesystem>
#include <set>

namespace XimoGis::System {

using Utility::CFilePath;
using Workspace::CTransaction;
using Workspace::CWorkspaceStore;

namespace {

std::wstring Describe(const CGisSystem& system) {
    return L"system \"" + system.GetName() + L"\" (" + std::to_wstring(system.GetSystemId()) + L")";
}

bool CheckNewSystem(int systemId, const std::wstring& name, const std::vector<CGisSystemLayer>& layers,
                    std::wstring& error) {
    if (systemId <= 0) {
        error = L"A system id must be positive, not " + std::to_wstring(systemId);
    } else if (name.empty()) {
        error = L"System " + std::to_wstring(systemId) + L" needs a name";
    } else {
        std::set<std::wstring> references;
        for (const CGisSystemLayer& layer : layers) {
            if (layer.GetReference().empty() || layer.GetLayerName().empty()) {
                error = L"System " + std::to_wstring(systemId) + L": every layer needs a reference and a name";
                return false;
            }
            if (layer.GetColorIndex() < 1 || layer.GetColorIndex() > 255) {
                error = L"System " + std::to_wstring(systemId) + L": layer \"" + layer.GetLayerName() +
                        L"\" has colour index " + std::to_wstring(layer.GetColorIndex()) + L", not 1 to 255";
                return false;
            }
            if (!references.insert(layer.GetReference()).second) {
                error = L"System " + std::to_wstring(systemId) + L": layer reference \"" + layer.GetReference() +
                        L"\" is given twice";
                return false;
            }
        }
        return true;
    }
    return false;
}

bool AskBeforeEntitiesDeleted(CGisSystem* system) {
    return CNotificationFramework::Instance()->AskResponders(
        [system](IFrameworkEventResponder& r) { return r.OnBeforeSystemEntitiesDeleted(system); });
}

void TellEntitiesDeleted(CGisSystem* system) {
    CNotificationFramework::Instance()->NotifyResponders(
        [system](IFrameworkEventResponder& r) { return r.OnAfterSystemEntitiesDeleted(system); });
}

}  // namespace

CSystemManager* CSystemManager::Instance() {
    static CSystemManager instance;
    return &instance;
}

bool CSystemManager::OpenWorkspace(const std::wstring& folder, std::wstring& error, bool createStore) {
    if (folder.empty()) {
        error = L"No workspace folder given";
        return false;
    }
    const std::wstring workspace = CFilePath::AsFolder(CFilePath::Resolve(folder, L""));
    CGisSystems loaded;
    int activeSystemId = 0;
    {
        CWorkspaceStore store;
        const auto mode = createStore ? CWorkspaceStore::omCreate : CWorkspaceStore::omReadOnly;
        if (!store.Open(CWorkspaceStore::PathInWorkspace(workspace), mode, error) ||
            !CSystemTables::Load(store, workspace, loaded, activeSystemId, error))
            return false;
    }
    CloseWorkspace();
    m_workspace = workspace;
    m_systems.Swap(loaded);
    m_activeSystemId = activeSystemId;
    CNotificationFramework::Instance()->NotifyResponders(
        [this](IFrameworkEventResponder& r) { return r.OnAfterWorkspaceOpened(m_workspace.c_str()); });
    return true;
}

bool CSystemManager::OpenWorkspace(std::wstring& error) {
    const std::wstring& folder = CModuleConfiguration::Instance()->GetWorkspacePath();
    if (folder.empty()) {
        error = L"No workspace is open in the module configuration";
        return false;
    }
    return OpenWorkspace(folder, error);
}

void CSystemManager::CloseWorkspace() {
    if (m_workspace.empty()) return;
    CNotificationFramework::Instance()->NotifyResponders(
        [this](IFrameworkEventResponder& r) { return r.OnBeforeWorkspaceClosed(m_workspace.c_str()); });
    m_workspace.clear();
    m_systems.Clear();
    m_activeSystemId = 0;
}

bool CSystemManager::WriteStore(const boost::function<bool(CWorkspaceStore&, std::wstring&)>& change,
                                std::wstring& error) const {
    if (m_workspace.empty()) {
        error = L"No workspace is open";
        return false;
    }
    CWorkspaceStore store;
    if (!store.Open(CWorkspaceStore::PathInWorkspace(m_workspace), CWorkspaceStore::omReadWrite, error)) return false;
    CTransaction transaction(store);
    if (!transaction.IsActive()) {
        error = transaction.GetError();
        return false;
    }
    return CSystemTables::Ensure(store, error) && change(store, error) && transaction.Commit(error);
}

bool CSystemManager::CheckOwnSystem(const CGisSystem* system, std::wstring& error) const {
    // Compared by address only: a pointer to a deleted system must not be followed.
    for (const auto& own : m_systems.GetSystemList()) {
        if (system && own.get() == system) return true;
    }
    error = system ? L"The system given is not one of the open workspace" : L"No system given";
    return false;
}

bool CSystemManager::SetActiveSystem(CGisSystem* system, std::wstring& error) {
    if (system && !CheckOwnSystem(system, error)) return false;
    const int systemId = system ? system->GetSystemId() : 0;
    const auto mark = [systemId](CWorkspaceStore& store, std::wstring& e) {
        return CSystemTables::SetActive(store, systemId, e);
    };
    if (!WriteStore(mark, error)) return false;
    if (systemId != m_activeSystemId) {
        m_activeSystemId = systemId;
        CNotificationFramework::Instance()->NotifyResponders(
            [system](IFrameworkEventResponder& r) { return r.OnActiveSystemChanged(system); });
    }
    return true;
}

CGisSystem* CSystemManager::CreateSystem(int systemId, const std::wstring& name, int topologyType,
                                         const std::vector<CGisSystemLayer>& layers, std::wstring& error) {
    if (!CheckNewSystem(systemId, name, layers, error)) return nullptr;
    if (const CGisSystem* existing = GetSystemById(systemId)) {
        error = L"System id " + std::to_wstring(systemId) + L" is taken by the " + Describe(*existing);
        return nullptr;
    }
    const auto system = boost::make_shared<CGisSystem>(systemId, name, topologyType, layers, m_workspace);
    const auto insert = [&system](CWorkspaceStore& store, std::wstring& e) {
        return CSystemTables::Insert(store, *system, e);
    };
    if (!WriteStore(insert, error)) return nullptr;
    m_systems.Add(system);
    CNotificationFramework::Instance()->NotifyResponders(
        [&system](IFrameworkEventResponder& r) { return r.OnAfterCreateSystem(system.get()); });
    return system.get();
}

bool CSystemManager::DeleteSystem(CGisSystem* system, std::wstring& error) {
    namespace fs = std::filesystem;
    if (!CheckOwnSystem(system, error)) return false;
    auto* hub = CNotificationFramework::Instance();
    if (!hub->AskResponders([system](IFrameworkEventResponder& r) { return r.OnBeforeDeleteSystem(system); }) ||
        !AskBeforeEntitiesDeleted(system)) {
        error = L"Deleting the " + Describe(*system) + L" was cancelled";
        return false;
    }
    const int systemId = system->GetSystemId();
    // The sub-documents are moved aside inside the transaction, so that a failed commit can put
    // them back, and removed for good only after it.
    const fs::path folder = CFilePath::ToPath(system->GetSubXMLFolder());
    const fs::path aside = fs::path(folder).concat(".deleted" + acutWcharToUtf8(Utility::CUtility::CreateGUID()));
    bool movedAside = false;
    const auto erase = [&](CWorkspaceStore& store, std::wstring& e) {
        if (!CSystemTables::DeleteEntities(store, systemId, e) || !CSystemTables::Delete(store, systemId, e))
            return false;
        std::error_code ec;
        if (!fs::exists(folder, ec)) return true;
        fs::rename(folder, aside, ec);
        movedAside = !ec;
        if (ec)
            e = L"Cannot remove the sub-documents of the " + Describe(*system) + L" in \"" + CFilePath::ToText(folder) +
                L"\": " + acutUtf8ToWchar(ec.message());
        return movedAside;
    };
    const bool written = WriteStore(erase, error);
    std::error_code ec;
    if (!written) {
        if (movedAside) fs::rename(aside, folder, ec);
        return false;
    }
    if (movedAside) fs::remove_all(aside, ec);

    TellEntitiesDeleted(system);
    const bool wasActive = systemId == m_activeSystemId;
    if (wasActive) m_activeSystemId = 0;
    // Kept alive until the responders have heard of the deletion.
    const boost::shared_ptr<CGisSystem> removed = m_systems.Remove(systemId);
    hub->NotifyResponders([](IFrameworkEventResponder& r) { return r.OnAfterDeleteSystem(); });
    if (wasActive) hub->NotifyResponders([](IFrameworkEventResponder& r) { return r.OnActiveSystemChanged(nullptr); });
    return true;
}

bool CSystemManager::DeleteSystemEntities(CGisSystem* system, std::wstring& error) {
    if (!CheckOwnSystem(system, error)) return false;
    if (!AskBeforeEntitiesDeleted(system)) {
        error = L"Deleting the entities of the " + Describe(*system) + L" was cancelled";
        return false;
    }
    const int systemId = system->GetSystemId();
    const auto erase = [systemId](CWorkspaceStore& store, std::wstring& e) {
        return CSystemTables::DeleteEntities(store, systemId, e);
    };
    if (!WriteStore(erase, error)) return false;
    TellEntitiesDeleted(system);
    return true;
}

}  // namespace XimoGis::System
