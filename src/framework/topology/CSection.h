#pragma once
// A section of a network (a pipe) from its starting node to its ending node, along its vertices
// (the first at the starting node, the last at the ending node).

#include "framework/topology/CNetworkEntity.h"
#include "host/geometry/AcGeVector3d.h"

#include <vector>

namespace XimoGis::Topology {

class CNode;

class CSection : public CNetworkEntity {
public:
    CSection(int systemId, std::wstring guid, std::wstring name, std::vector<AcGePoint3d> vertices,
             std::wstring startNodeGuid, std::wstring endNodeGuid);

    // Null when the storage did not find the node.
    CNode* GetStartingNode() const { return m_startNode; }
    CNode* GetEndingNode() const { return m_endNode; }
    const std::wstring& GetStartNodeGuid() const { return m_startNodeGuid; }
    const std::wstring& GetEndNodeGuid() const { return m_endNodeGuid; }
    // The node at the section's other end from `node`; null when `node` is at neither end.
    CNode* GetOtherNode(const CNode* node) const;

    const std::vector<AcGePoint3d>& GetVertices() const { return m_vertices; }
    // Length in plan (x and y).
    double GetLength() const;
    // The unit direction in plan in which the section leaves `node` (along its first or last
    // segment). False when `node` is at neither end or the segment has no length in plan.
    bool GetDirectionAt(const CNode* node, AcGeVector3d& direction) const;

    std::wstring GetXML() override;
    std::unique_ptr<geos::geom::Geometry> GetGeosGeometry() override;

private:
    friend class CTopologyStorage;

    std::vector<AcGePoint3d> m_vertices;
    std::wstring m_startNodeGuid;
    std::wstring m_endNodeGuid;
    CNode* m_startNode = nullptr;
    CNode* m_endNode = nullptr;
};

}  // namespace XimoGis::Topology
