#pragma once
// A node of a network (a junction, a valve, a hydrant, a manhole): its position and the sections
// that end at it. Sections coming in end at the node; sections going out start at it. The node's
// topology storage owns the node and its sections.

#include "framework/topology/CNetworkEntity.h"

#include <vector>

namespace XimoGis::Topology {

class CSection;

class CNode : public CNetworkEntity {
public:
    CNode(int systemId, std::wstring guid, std::wstring name, const AcGePoint3d& position);

    const AcGePoint3d& GetPosition() const { return m_position; }
    // In the order of the section layer.
    const std::vector<CSection*>& GetSectionsIn() const { return m_sectionsIn; }
    const std::vector<CSection*>& GetSectionsOut() const { return m_sectionsOut; }
    // Ins first, then outs.
    std::vector<CSection*> GetSections() const;

    std::wstring GetXML() override;
    std::unique_ptr<geos::geom::Geometry> GetGeosGeometry() override;

private:
    friend class CTopologyStorage;

    AcGePoint3d m_position;
    std::vector<CSection*> m_sectionsIn;
    std::vector<CSection*> m_sectionsOut;
};

}  // namespace XimoGis::Topology
