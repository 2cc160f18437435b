#include "module/components/CCustomDlgBlockPicker.h"

namespace XimoGis::AssemblySchemes {

bool CCustomDlgBlockPicker::Run(Data::CPropertyEx& property, Data::CPropertiesEx* properties,
                                const std::wstring& answer) {
    const std::wstring name = answer == kNoBlock ? std::wstring() : answer;
    if (name != property.GetValueFor(1).GetText() && properties && properties->GetProperty(L"IT_BLOCK_ATTDATA"))
        properties->SetPropertyValue(L"IT_BLOCK_ATTDATA", L"");
    property.SetValue(name);
    return true;
}

}  // namespace XimoGis::AssemblySchemes
