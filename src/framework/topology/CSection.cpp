#include "framework/topology/CSection.h"

#include "framework/topology/CNode.h"
#include "framework/utility/CTransform.h"
#include "framework/data/CXmlText.h"

#include <cmath>

namespace XimoGis::Topology {

CSection::CSection(int systemId, std::wstring guid, std::wstring name, std::vector<AcGePoint3d> vertices,
                   std::wstring startNodeGuid, std::wstring endNodeGuid)
    : CNetworkEntity(etSection, systemId, std::move(guid), std::move(name)),
      m_vertices(std::move(vertices)),
      m_startNodeGuid(std::move(startNodeGuid)),
      m_endNodeGuid(std::move(endNodeGuid)) {}

CNode* CSection::GetOtherNode(const CNode* node) const {
    if (!node) return nullptr;
    if (node == m_startNode) return m_endNode;
    if (node == m_endNode) return m_startNode;
    return nullptr;
}

double CSection::GetLength() const {
    double length = 0.0;
    for (std::size_t i = 1; i < m_vertices.size(); ++i)
        length += std::hypot(m_vertices[i].x - m_vertices[i - 1].x, m_vertices[i].y - m_vertices[i - 1].y);
    return length;
}

bool CSection::GetDirectionAt(const CNode* node, AcGeVector3d& direction) const {
    if (!node || m_vertices.size() < 2) return false;
    AcGeVector3d along;
    if (node == m_startNode) {
        along = m_vertices[1] - m_vertices[0];
    } else if (node == m_endNode) {
        along = m_vertices[m_vertices.size() - 2] - m_vertices.back();
    } else {
        return false;
    }
    along.z = 0.0;
    const double length = along.length();
    if (length <= 1e-9) return false;
    direction = along * (1.0 / length);
    return true;
}

std::wstring CSection::GetXML() {
    pugi::xml_document document;
    pugi::xml_node section = document.append_child("section");
    Data::CXmlText::SetAttribute(section, "guid", GetGuid());
    Data::CXmlText::SetAttribute(section, "name", GetName());
    Data::CXmlText::SetAttribute(section, "system", static_cast<long>(GetSystemId()));
    Data::CXmlText::SetAttribute(section, "start", m_startNodeGuid);
    Data::CXmlText::SetAttribute(section, "end", m_endNodeGuid);
    return Data::CXmlText::ToText(section);
}

std::unique_ptr<geos::geom::Geometry> CSection::GetGeosGeometry() {
    AcArray<AcGePoint3d> points;
    for (const AcGePoint3d& p : m_vertices) points.append(p);
    return Utility::CTransform::GetGeosLineString(points);
}

}  // namespace XimoGis::Topology
