#include "framework/topology/CTopologyMultiStorage.h"

#include "framework/notification/CNotificationFramework.h"
#include "framework/systems/CSystemManager.h"
#include "framework/workspace/CWorkspaceStore.h"

#include <boost/make_shared.hpp>

namespace XimoGis::Topology {

namespace {

// Drops what the notifications say is out of date.
class CTopologyEventResponder : public IFrameworkEventResponder {
public:
    int OnAfterWorkspaceOpened(const wchar_t*) override { return Drop(); }
    int OnBeforeWorkspaceClosed(const wchar_t*) override { return Drop(); }
    int OnAfterDeleteSystem() override { return Drop(); }
    int OnAfterSystemEntitiesDeleted(CGisSystem* system) override { return Drop(system); }
    int OnAfterNodeCreated(CGisSystem* system, const wchar_t*) override { return Drop(system); }
    int OnAfterNodeModified(CGisSystem* system, const wchar_t*) override { return Drop(system); }
    int OnAfterSectionCreated(CGisSystem* system, const wchar_t*) override { return Drop(system); }
    int OnAfterSectionModified(CGisSystem* system, const wchar_t*) override { return Drop(system); }
    int OnAfterEntitiesDeleted(CGisSystem* system) override { return Drop(system); }

private:
    static int Drop(CGisSystem* system = nullptr) {
        if (system) CTopologyMultiStorage::Instance()->Reset(system->GetSystemId());
        else CTopologyMultiStorage::Instance()->Reset();
        return 1;
    }
};

}  // namespace

CTopologyMultiStorage::CTopologyMultiStorage() = default;

CTopologyMultiStorage* CTopologyMultiStorage::Instance() {
    static CTopologyMultiStorage* instance = [] {
        static CTopologyMultiStorage storage;
        CNotificationFramework::Instance()->RegisterEventResponder(boost::make_shared<CTopologyEventResponder>());
        return &storage;
    }();
    return instance;
}

CTopologyStorage* CTopologyMultiStorage::GetTopology(System::CGisSystem* system) {
    if (!system) {
        m_lastError = L"No system given";
        return nullptr;
    }
    return GetTopology(system->GetSystemId());
}

CTopologyStorage* CTopologyMultiStorage::GetTopology(int systemId) {
    const std::wstring& workspace = System::CSystemManager::Instance()->GetWorkspacePath();
    if (workspace != m_workspace) {
        Reset();
        m_workspace = workspace;
    }
    if (workspace.empty()) {
        m_lastError = L"No workspace is open";
        return nullptr;
    }
    const auto found = m_storages.find(systemId);
    if (found != m_storages.end()) return found->second.get();

    Workspace::CWorkspaceStore store;
    auto topology = boost::make_shared<CTopologyStorage>(systemId);
    if (!store.Open(Workspace::CWorkspaceStore::PathInWorkspace(workspace), Workspace::CWorkspaceStore::omReadOnly,
                    m_lastError) ||
        !topology->Load(store, m_lastError))
        return nullptr;
    m_lastError.clear();
    m_storages[systemId] = topology;
    return topology.get();
}

void CTopologyMultiStorage::Reset() { m_storages.clear(); }

void CTopologyMultiStorage::Reset(int systemId) { m_storages.erase(systemId); }

}  // namespace XimoGis::Topology
