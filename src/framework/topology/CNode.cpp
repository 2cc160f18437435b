#include "framework/topology/CNode.h"

#include "framework/topology/CSection.h"
#include "framework/utility/CTransform.h"
#include "framework/data/CNumberText.h"
#include "framework/data/CXmlText.h"


namespace XimoGis::Topology {

CNode::CNode(int systemId, std::wstring guid, std::wstring name, const AcGePoint3d& position)
    : CNetworkEntity(etNode, systemId, std::move(guid), std::move(name)), m_position(position) {}

std::vector<CSection*> CNode::GetSections() const {
    std::vector<CSection*> all(m_sectionsIn);
    all.insert(all.end(), m_sectionsOut.begin(), m_sectionsOut.end());
    return all;
}

std::wstring CNode::GetXML() {
    pugi::xml_document document;
    pugi::xml_node node = document.append_child("node");
    Data::CXmlText::SetAttribute(node, "guid", GetGuid());
    Data::CXmlText::SetAttribute(node, "name", GetName());
    Data::CXmlText::SetAttribute(node, "system", static_cast<long>(GetSystemId()));
    Data::CXmlText::SetAttribute(node, "x", Data::CNumberText::FormatDouble(m_position.x));
    Data::CXmlText::SetAttribute(node, "y", Data::CNumberText::FormatDouble(m_position.y));
    return Data::CXmlText::ToText(node);
}

std::unique_ptr<geos::geom::Geometry> CNode::GetGeosGeometry() { return Utility::CTransform::GetGeosPoint(m_position); }

}  // namespace XimoGis::Topology
