#include "module/instances/CASAudit.h"

#include <cwchar>

namespace XimoGis::AssemblySchemes {

void CASAudit::Add(enmASAuditCode code, AcDbObjectId entity, const std::wstring& message) {
    m_problems.push_back({code, entity.isNull() ? 0u : entity.handle(), message});
}

const wchar_t* CASAudit::GetCodeName(int code) {
    switch (code) {
        case aacWrongAttributeType: return L"WRONG_ATTRIBUTE_TYPE";
        case aacMissingGuid: return L"MISSING_GUID";
        case aacMissingInternalTag: return L"MISSING_INTERNAL_TAG";
        case aacUnknownInternalTag: return L"UNKNOWN_INTERNAL_TAG";
        case aacMissingComponentId: return L"MISSING_COMPONENT_ID";
        case aacUnknownComponentId: return L"UNKNOWN_COMPONENT_ID";
        case aacMissingElementId: return L"MISSING_ELEMENT_ID";
        case aacBasePointNotAPoint: return L"BASE_POINT_NOT_A_POINT";
        case aacNoGeneralData: return L"NO_GENERAL_DATA";
        case aacNoDataHolder: return L"NO_DATA_HOLDER";
        case aacNoReferredNumber: return L"NO_REFERRED_NUMBER";
        default: return L"UNKNOWN";
    }
}

std::wstring CASAudit::FormatHandle(Adesk::UInt32 handle) {
    if (handle == 0) return {};
    wchar_t text[16];
    std::swprintf(text, 16, L"%X", static_cast<unsigned>(handle));
    return text;
}

}  // namespace XimoGis::AssemblySchemes
