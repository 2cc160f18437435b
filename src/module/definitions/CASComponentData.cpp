#include "module/definitions/CASComponentData.h"

#include "module/support/CASFormat.h"
#include "module/support/CASXmlCursor.h"

#include "framework/config/CModuleConfiguration.h"
#include "framework/utility/CUtility.h"

#include <boost/make_shared.hpp>

#include <sstream>

namespace XimoGis::AssemblySchemes {

using Longitudinal::CLSDrawInterfaceData;

std::wstring CASComponentData::GetName() {
    const std::wstring name = CModuleConfiguration::GetMsg(GetDrawData()->GetNameMsg());
    if (m_type != eASComponentText) return name;
    // A text component is named with the node data it shows, "(<data name>)" after a blank, when
    // the framework knows the data id stored in "LAD_DATAID". The framework has no catalogue of
    // node data definitions, so no id is known and the data part stays empty.
    return CASFormat::Format(L"%ls %ls", name.c_str(), L"");
}

const boost::shared_ptr<CLSDrawInterfaceData>& CASComponentData::GetDrawData() {
    if (!m_drawData) m_drawData = boost::make_shared<CLSDrawInterfaceData>();
    return m_drawData;
}

std::wstring CASComponentData::GetId() { return GetDrawData()->GetId(); }

std::wstring CASComponentData::GetDescription() {
    return CModuleConfiguration::GetMsg(GetDrawData()->GetDescriptionMsg());
}

void CASComponentData::SetNameMsg(int msg) { GetDrawData()->SetNameMsg(msg); }

void CASComponentData::SetDescriptionMsg(int msg) { GetDrawData()->SetDescriptionMsg(msg); }

void CASComponentData::MakeDeepCopy(CASComponentData& target) {
    target.m_type = m_type;
    target.m_offx = m_offx;
    target.m_offy = m_offy;
    target.m_intId = Utility::CUtility::CreateGUID();
    target.m_prntId = m_prntId;
    auto drawData = boost::make_shared<CLSDrawInterfaceData>();
    GetDrawData()->MakeDeepCopy(*drawData);
    target.m_drawData = drawData;
}

void CASComponentData::GetXML(std::wostream& out) const {
    out << CASFormat::Format(L"<asComData type=\"%d\" offx=\"%6.3f\" offy=\"%6.3f\" intId=\"%ls\" prntId=\"%ls\" >",
                             static_cast<int>(m_type), m_offx, m_offy, m_intId.c_str(), m_prntId.c_str());
    // The stored pointer, not GetDrawData: a component that never had draw data writes none.
    if (m_drawData) out << m_drawData->GetXML();
    out << L"</asComData>";
}

std::wstring CASComponentData::GetXML() const {
    std::wostringstream out;
    GetXML(out);
    return out.str();
}

int CASComponentData::ParseXML(const wchar_t* xml) {
    CASXmlCursor cursor;
    cursor.SetDoc(xml);
    if (!cursor.FindElem(L"asComData")) return 0;
    m_type = static_cast<enmASComponentType>(cursor.GetIntAttrib("type"));
    m_offx = cursor.GetDblAttrib("offx");
    m_offy = cursor.GetDblAttrib("offy");
    m_intId = cursor.GetAttrib("intId");
    m_prntId = cursor.GetAttrib("prntId");
    cursor.IntoElem();
    if (cursor.FindElem(L"drawInterface")) GetDrawData()->ParseXML(cursor.GetSubDoc().c_str());
    return 1;
}

}  // namespace XimoGis::AssemblySchemes
