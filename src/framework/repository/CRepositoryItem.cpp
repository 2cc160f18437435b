#include "framework/repository/CRepositoryItem.h"

#include "framework/data/CXmlText.h"

#include <pugixml.hpp>

#include <sstream>

namespace XimoGis {

void CRepositoryItem::GetXML(std::wostream& out) const {
    using Data::CXmlText;
    pugi::xml_document document;
    pugi::xml_node element = document.append_child("repositoryItem");
    CXmlText::SetAttribute(element, "id", m_id);
    CXmlText::SetAttribute(element, "name", m_name);
    CXmlText::SetAttribute(element, "entType", long{m_entType});
    CXmlText::SetAttribute(element, "topologyType", long{m_topologyType});
    CXmlText::SetAttribute(element, "topologyFunction", long{m_topologyFunction});
    CXmlText::SetAttribute(element, "readOnly", long{m_readOnly});
    CXmlText::SetAttribute(element, "hidden", long{m_hidden});
    out << CXmlText::ToText(element);
}

std::wstring CRepositoryItem::GetXML() const {
    std::wostringstream out;
    GetXML(out);
    return out.str();
}

}  // namespace XimoGis
