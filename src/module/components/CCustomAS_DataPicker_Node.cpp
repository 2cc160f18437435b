#include "module/components/CCustomAS_DataPicker_Node.h"

namespace XimoGis::AssemblySchemes {

bool CCustomAS_DataPicker_Node::Run(Data::CPropertyEx& property, Data::CPropertiesEx* /*properties*/,
                                    const std::wstring& answer) {
    if (answer.empty()) return false;
    property.SetValue(answer);
    return true;
}

}  // namespace XimoGis::AssemblySchemes
