#include "module/components/CCustomDlgBOMDataPicker.h"

#include "module/support/CASXmlEscape.h"

#include "host/base/AcString.h"

#include <rapidjson/document.h>

#include <algorithm>

namespace XimoGis::AssemblySchemes {

bool CCustomDlgBOMDataPicker::Run(Data::CPropertyEx& /*property*/, Data::CPropertiesEx* properties,
                                  const std::wstring& answer) {
    if (!properties || !properties->GetProperty(L"IT_BOM_DATA")) return false;
    rapidjson::Document columns;
    columns.Parse(acutWcharToUtf8(answer).c_str());
    if (columns.HasParseError() || !columns.IsObject()) return false;
    std::wstring stored = answer;
    std::replace(stored.begin(), stored.end(), L'"', L'#');
    return properties->SetPropertyValue(L"IT_BOM_DATA", CASXmlEscape::Escape(stored));
}

}  // namespace XimoGis::AssemblySchemes
