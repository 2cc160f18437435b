#include "framework/systems/CSystemTables.h"

#include "framework/workspace/CStatement.h"
#include "framework/workspace/CWorkspaceStore.h"

#include <boost/make_shared.hpp>

#include <map>
#include <vector>

namespace XimoGis::System {

using Workspace::CStatement;
using Workspace::CWorkspaceStore;

const char* const CSystemTables::kSystemsTable = "ximo_systems";
const char* const CSystemTables::kLayersTable = "ximo_system_layers";

namespace {

const char* const kCreateSystems = R"SQL(
CREATE TABLE ximo_systems (
  fid INTEGER PRIMARY KEY AUTOINCREMENT,
  system_id INTEGER NOT NULL UNIQUE,
  name TEXT NOT NULL,
  topology_type INTEGER NOT NULL,
  active BOOLEAN NOT NULL DEFAULT 0 CHECK (active IN (0, 1))
))SQL";

const char* const kCreateLayers = R"SQL(
CREATE TABLE ximo_system_layers (
  fid INTEGER PRIMARY KEY AUTOINCREMENT,
  system_id INTEGER NOT NULL REFERENCES ximo_systems (system_id),
  reference TEXT NOT NULL,
  layer_name TEXT NOT NULL,
  color_index INTEGER NOT NULL,
  linetype TEXT NOT NULL,
  UNIQUE (system_id, reference)
))SQL";

std::string QuoteIdentifier(const std::string& name) {
    std::string quoted = "\"";
    for (char c : name) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + "\"";
}

}  // namespace

bool CSystemTables::Ensure(CWorkspaceStore& store, std::wstring& error) {
    return store.EnsureAttributeTable(kSystemsTable, kCreateSystems, L"Network systems of the workspace", error) &&
           store.EnsureAttributeTable(kLayersTable, kCreateLayers, L"Drawing layers of the network systems", error);
}

bool CSystemTables::Load(CWorkspaceStore& store, const std::wstring& workspaceFolder, CGisSystems& systems,
                         int& activeSystemId, std::wstring& error) {
    systems.Clear();
    activeSystemId = 0;
    if (!store.HasTable(kSystemsTable)) return true;

    std::map<int, std::vector<CGisSystemLayer>> layers;
    if (store.HasTable(kLayersTable)) {
        CStatement query(store,
                         "SELECT system_id, reference, layer_name, color_index, linetype FROM ximo_system_layers "
                         "ORDER BY fid");
        while (query.Next())
            layers[query.GetInt(0)].emplace_back(query.GetText(1), query.GetText(2), query.GetInt(3), query.GetText(4));
        if (query.Failed()) {
            error = query.GetError();
            return false;
        }
    }
    CStatement query(store, "SELECT system_id, name, topology_type, active FROM ximo_systems ORDER BY fid");
    while (query.Next()) {
        const int id = query.GetInt(0);
        systems.Add(boost::make_shared<CGisSystem>(id, query.GetText(1), query.GetInt(2), std::move(layers[id]),
                                                   workspaceFolder));
        if (query.GetInt(3) == 1) activeSystemId = id;
    }
    if (query.Failed()) {
        error = query.GetError();
        systems.Clear();
        return false;
    }
    return true;
}

bool CSystemTables::Insert(CWorkspaceStore& store, const CGisSystem& system, std::wstring& error) {
    CStatement insertSystem(store, "INSERT INTO ximo_systems (system_id, name, topology_type) VALUES (?, ?, ?)");
    insertSystem.Bind(1, system.GetSystemId()).Bind(2, system.GetName()).Bind(3, system.GetTopologyType());
    if (!insertSystem.Execute(error)) return false;

    CStatement insertLayer(store,
                           "INSERT INTO ximo_system_layers (system_id, reference, layer_name, color_index, linetype) "
                           "VALUES (?, ?, ?, ?, ?)");
    for (const CGisSystemLayer& layer : system.GetLayers()) {
        insertLayer.Reset();
        insertLayer.Bind(1, system.GetSystemId())
            .Bind(2, layer.GetReference())
            .Bind(3, layer.GetLayerName())
            .Bind(4, layer.GetColorIndex())
            .Bind(5, layer.GetLinetypeName());
        if (!insertLayer.Execute(error)) return false;
    }
    return store.TouchContents(kSystemsTable, error) && store.TouchContents(kLayersTable, error);
}

bool CSystemTables::Delete(CWorkspaceStore& store, int systemId, std::wstring& error) {
    CStatement deleteLayers(store, "DELETE FROM ximo_system_layers WHERE system_id = ?");
    deleteLayers.Bind(1, systemId);
    CStatement deleteSystem(store, "DELETE FROM ximo_systems WHERE system_id = ?");
    deleteSystem.Bind(1, systemId);
    return deleteLayers.Execute(error) && deleteSystem.Execute(error) && store.TouchContents(kSystemsTable, error) &&
           store.TouchContents(kLayersTable, error);
}

bool CSystemTables::DeleteEntities(CWorkspaceStore& store, int systemId, std::wstring& error) {
    std::vector<std::string> tables;
    {
        CStatement query(store,
                         "SELECT table_name FROM gpkg_contents WHERE table_name NOT IN (?, ?) ORDER BY table_name");
        query.Bind(1, std::string(kSystemsTable)).Bind(2, std::string(kLayersTable));
        while (query.Next()) {
            std::string table = query.GetUtf8(0);
            if (store.HasColumn(table, "system_id")) tables.push_back(std::move(table));
        }
        if (query.Failed()) {
            error = query.GetError();
            return false;
        }
    }
    for (const std::string& table : tables) {
        CStatement erase(store, ("DELETE FROM " + QuoteIdentifier(table) + " WHERE system_id = ?").c_str());
        erase.Bind(1, systemId);
        if (!erase.Execute(error) || !store.TouchContents(table, error)) return false;
    }
    return true;
}

bool CSystemTables::SetActive(CWorkspaceStore& store, int systemId, std::wstring& error) {
    CStatement update(store, "UPDATE ximo_systems SET active = (system_id = ?)");
    update.Bind(1, systemId);
    return update.Execute(error) && store.TouchContents(kSystemsTable, error);
}

}  // namespace XimoGis::System
