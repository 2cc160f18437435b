#include "framework/longitudinal/CLSDrawInterfaceData.h"

#include "framework/data/CXmlText.h"

#include <boost/make_shared.hpp>

namespace XimoGis::Longitudinal {

using Data::CPropertiesEx;
using Data::CXmlText;

namespace {

constexpr const char* kRootName = "drawInterface";

}  // namespace

CLSDrawInterfaceData::CLSDrawInterfaceData() : m_properties(boost::make_shared<CPropertiesEx>()) {}

CLSDrawInterfaceData::CLSDrawInterfaceData(std::wstring id, int nameMsg, int descriptionMsg)
    : m_id(std::move(id)),
      m_nameMsg(nameMsg),
      m_descriptionMsg(descriptionMsg),
      m_properties(boost::make_shared<CPropertiesEx>()) {}

void CLSDrawInterfaceData::SetProperties(const boost::shared_ptr<CPropertiesEx>& properties) {
    m_properties = properties ? properties : boost::make_shared<CPropertiesEx>();
}

void CLSDrawInterfaceData::MakeDeepCopy(CLSDrawInterfaceData& target) const {
    if (&target == this) return;
    target.m_id = m_id;
    target.m_nameMsg = m_nameMsg;
    target.m_descriptionMsg = m_descriptionMsg;
    target.m_mandatory = m_mandatory;
    target.m_targetLocation = m_targetLocation;
    target.m_header = m_header;
    auto properties = boost::make_shared<CPropertiesEx>();
    m_properties->MakeDeepCopy(*properties);
    target.m_properties = properties;
}

std::wstring CLSDrawInterfaceData::GetXML() const {
    pugi::xml_document document;
    WriteXmlNode(document);
    return CXmlText::ToText(document.first_child());
}

void CLSDrawInterfaceData::WriteXmlNode(pugi::xml_node parent) const {
    pugi::xml_node node = parent.append_child(kRootName);
    CXmlText::SetAttribute(node, "id", m_id);
    CXmlText::SetAttribute(node, "nameMsg", m_nameMsg);
    CXmlText::SetAttribute(node, "descriptionMsg", m_descriptionMsg);
    CXmlText::SetFlag(node, "mandatory", m_mandatory);
    CXmlText::SetAttribute(node, "targetLocation", m_targetLocation);
    CXmlText::SetFlag(node, "header", m_header);
    m_properties->WriteXmlNode(node);
}

bool CLSDrawInterfaceData::ParseXML(const wchar_t* xml, std::wstring* error) {
    pugi::xml_document document;
    if (!CXmlText::Load(xml, document, error)) return false;
    return ReadXmlNode(document.document_element(), error);
}

bool CLSDrawInterfaceData::ReadXmlNode(const pugi::xml_node& node, std::wstring* error) {
    if (node.type() != pugi::node_element || std::string(node.name()) != kRootName)
        return CXmlText::Fail(error, L"expected a <drawInterface> element");
    int nameMsg = 0, descriptionMsg = 0, targetLocation = 0;
    bool mandatory = false, header = false;
    std::wstring reason;
    if (!CXmlText::ReadInt(node, "nameMsg", 0, nameMsg, &reason) ||
        !CXmlText::ReadInt(node, "descriptionMsg", 0, descriptionMsg, &reason) ||
        !CXmlText::ReadFlag(node, "mandatory", false, mandatory, &reason) ||
        !CXmlText::ReadInt(node, "targetLocation", 0, targetLocation, &reason) ||
        !CXmlText::ReadFlag(node, "header", false, header, &reason))
        return CXmlText::Fail(error, L"drawInterface: " + reason);
    auto properties = boost::make_shared<CPropertiesEx>();
    const pugi::xml_node propertiesNode = node.child("ppsEx");
    if (propertiesNode && !properties->ReadXmlNode(propertiesNode, &reason))
        return CXmlText::Fail(error, L"drawInterface: " + reason);
    m_id = CXmlText::GetAttribute(node, "id");
    m_nameMsg = nameMsg;
    m_descriptionMsg = descriptionMsg;
    m_mandatory = mandatory;
    m_targetLocation = targetLocation;
    m_header = header;
    m_properties = properties;
    return true;
}

bool CLSDrawInterfaceData::operator==(const CLSDrawInterfaceData& other) const {
    return m_id == other.m_id && m_nameMsg == other.m_nameMsg && m_descriptionMsg == other.m_descriptionMsg &&
           m_mandatory == other.m_mandatory && m_targetLocation == other.m_targetLocation &&
           m_header == other.m_header && *m_properties == *other.m_properties;
}

}  // namespace XimoGis::Longitudinal
