#pragma once
// The node data picker of the text component, opened from "LAD_DATAID": it chooses the data of
// the network node that the text shows. Without windows the user's answer is the data identifier.

#include "framework/dialogs/ICustomDialog.h"

namespace XimoGis::AssemblySchemes {

class CCustomAS_DataPicker_Node : public Data::ICustomDialog {
public:
    static constexpr const wchar_t* kControlId = L"CD_ASDATAPICKER_NODE";

    // False, changing nothing, for an empty answer: a data text needs data to show.
    bool Run(Data::CPropertyEx& property, Data::CPropertiesEx* properties, const std::wstring& answer) override;
};

}  // namespace XimoGis::AssemblySchemes
