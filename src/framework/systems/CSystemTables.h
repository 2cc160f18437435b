#pragma once
// The systems and their layers in the workspace store, as two attribute tables:
//   ximo_systems        (fid, system_id UNIQUE, name, topology_type, active 0/1)
//   ximo_system_layers  (fid, system_id, reference, layer_name, color_index, linetype),
//                       one row per layer, UNIQUE (system_id, reference), in fid order.
// Every other table of the store that has a system_id column holds entities of that system.
// The writers expect to run inside the caller's transaction.

#include "framework/systems/CGisSystems.h"

#include <string>

namespace XimoGis::Workspace {
class CWorkspaceStore;
}

namespace XimoGis::System {

class CSystemTables {
public:
    static const char* const kSystemsTable;
    static const char* const kLayersTable;

    static bool Ensure(Workspace::CWorkspaceStore& store, std::wstring& error);
    // A store without the tables holds no systems. `activeSystemId` is 0 when none is active.
    static bool Load(Workspace::CWorkspaceStore& store, const std::wstring& workspaceFolder, CGisSystems& systems,
                     int& activeSystemId, std::wstring& error);
    static bool Insert(Workspace::CWorkspaceStore& store, const CGisSystem& system, std::wstring& error);
    static bool Delete(Workspace::CWorkspaceStore& store, int systemId, std::wstring& error);
    // Deletes the system's rows from every entity table (not its own row or layers).
    static bool DeleteEntities(Workspace::CWorkspaceStore& store, int systemId, std::wstring& error);
    // Marks one system active and every other inactive; 0 leaves none active.
    static bool SetActive(Workspace::CWorkspaceStore& store, int systemId, std::wstring& error);
};

}  // namespace XimoGis::System
