#include "framework/topology/CNetworkImport.h"

#include "framework/systems/CGisSystem.h"
#include "framework/topology/CGeoJsonLayerReader.h"
#include "framework/topology/CNetworkLayers.h"
#include "framework/topology/CTopologyMultiStorage.h"
#include "framework/workspace/CTransaction.h"
#include "framework/workspace/CWorkspaceStore.h"

#include <cmath>
#include <map>

namespace XimoGis::Topology {

using Data::CDataDefinition;
using Data::enmDataTarget;

namespace {

bool CheckEnds(const std::vector<CNetworkFeature>& nodes, const std::vector<CNetworkFeature>& sections,
               const std::wstring& sectionsFile, std::wstring& error) {
    std::map<std::wstring, AcGePoint3d> positions;
    for (const CNetworkFeature& node : nodes) positions[node.guid] = node.geometry.front();
    for (const CNetworkFeature& section : sections) {
        const std::pair<const std::wstring*, const AcGePoint3d*> ends[] = {
            {&section.startNode, &section.geometry.front()}, {&section.endNode, &section.geometry.back()}};
        for (const auto& [guid, vertex] : ends) {
            const auto node = positions.find(*guid);
            const std::wstring where = L"Layer source \"" + sectionsFile + L"\": section " + section.guid;
            if (node == positions.end()) {
                error = where + L" names node " + *guid + L", which is not in the nodes";
                return false;
            }
            const double gap = std::hypot(node->second.x - vertex->x, node->second.y - vertex->y);
            if (gap > CNetworkImport::kEndTolerance) {
                error = where + L" does not reach its node " + *guid + L" (" + std::to_wstring(gap) + L" m away)";
                return false;
            }
        }
    }
    return true;
}

}  // namespace

bool CNetworkImport::Import(const System::CGisSystem& system, const std::wstring& nodesFile,
                            const std::wstring& sectionsFile, std::wstring& error) {
    std::vector<CDataDefinition> nodeColumns, sectionColumns;
    std::vector<CNetworkFeature> nodes, sections;
    if (!CGeoJsonLayerReader::Read(nodesFile, enmDataTarget::Node, nodeColumns, nodes, error) ||
        !CGeoJsonLayerReader::Read(sectionsFile, enmDataTarget::Section, sectionColumns, sections, error) ||
        !CheckEnds(nodes, sections, sectionsFile, error))
        return false;

    Workspace::CWorkspaceStore store;
    if (!store.Open(Workspace::CWorkspaceStore::PathInWorkspace(system.GetWorkspaceFolder()),
                    Workspace::CWorkspaceStore::omReadWrite, error))
        return false;
    Workspace::CTransaction transaction(store);
    if (!transaction.IsActive()) {
        error = transaction.GetError();
        return false;
    }
    const int id = system.GetSystemId();
    const bool written =
        CNetworkLayers::CreateLayer(store, id, enmDataTarget::Node, system.GetName() + L": nodes", nodeColumns, error) &&
        CNetworkLayers::CreateLayer(store, id, enmDataTarget::Section, system.GetName() + L": sections", sectionColumns,
                                    error) &&
        CNetworkLayers::InsertFeatures(store, id, enmDataTarget::Node, nodeColumns, nodes, error) &&
        CNetworkLayers::InsertFeatures(store, id, enmDataTarget::Section, sectionColumns, sections, error) &&
        transaction.Commit(error);
    CTopologyMultiStorage::Instance()->Reset(id);
    return written;
}

}  // namespace XimoGis::Topology
