#pragma once
// The network systems of the open workspace. Systems and their layers are kept in the
// workspace store (see CSystemTables); the store is opened for each operation, read-only for
// reading, and every change is one transaction, so a failed change leaves the file as it was.
//
// Notifications raised (CNotificationFramework): OnAfterWorkspaceOpened, OnBeforeWorkspaceClosed,
// OnAfterCreateSystem, OnActiveSystemChanged; deleting a system asks OnBeforeDeleteSystem and
// OnBeforeSystemEntitiesDeleted, then tells OnAfterSystemEntitiesDeleted and OnAfterDeleteSystem.

#include "framework/systems/CGisSystems.h"

#include <boost/function.hpp>

#include <string>
#include <vector>

namespace XimoGis::Workspace {
class CWorkspaceStore;
}

namespace XimoGis::System {

class CSystemManager {
public:
    static CSystemManager* Instance();

    // Loads the systems of the workspace in `folder`. With `createStore` a missing store is
    // created empty. On failure the workspace open before stays open and `error` names the file.
    bool OpenWorkspace(const std::wstring& folder, std::wstring& error, bool createStore = false);
    // The workspace of the module configuration.
    bool OpenWorkspace(std::wstring& error);
    void CloseWorkspace();
    // The open workspace folder; empty when none is open.
    const std::wstring& GetWorkspacePath() const { return m_workspace; }

    CGisSystems* GetSystems() { return &m_systems; }
    CGisSystem* GetSystemById(int systemId) const { return m_systems.GetSystemById(systemId); }
    CGisSystem* GetActiveSystem() const { return m_systems.GetSystemById(m_activeSystemId); }
    // Null makes no system active. The choice is kept in the store.
    bool SetActiveSystem(CGisSystem* system, std::wstring& error);

    // Creates a system with its layers in the store. The id must be positive and not taken, the
    // name not empty, layer references and names not empty, references unique and colour
    // indexes 1 to 255.
    CGisSystem* CreateSystem(int systemId, const std::wstring& name, int topologyType,
                             const std::vector<CGisSystemLayer>& layers, std::wstring& error);
    // Deletes the system's entities, layers, row and sub-documents. A responder that answers 0
    // to a "Before" notification cancels it; nothing is deleted then.
    bool DeleteSystem(CGisSystem* system, std::wstring& error);
    // Deletes the rows of the system in every entity table and keeps the system.
    bool DeleteSystemEntities(CGisSystem* system, std::wstring& error);

    CSystemManager(const CSystemManager&) = delete;
    CSystemManager& operator=(const CSystemManager&) = delete;

private:
    CSystemManager() = default;
    // Opens the store for writing and runs `change` in one transaction, committed when it succeeds.
    bool WriteStore(const boost::function<bool(Workspace::CWorkspaceStore&, std::wstring&)>& change,
                    std::wstring& error) const;
    bool CheckOwnSystem(const CGisSystem* system, std::wstring& error) const;

    std::wstring m_workspace;
    CGisSystems m_systems;
    int m_activeSystemId = 0;
};

}  // namespace XimoGis::System
