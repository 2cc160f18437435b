#pragma once
// The block picker of the info table, opened from "IT_BLOCK_NAME": it chooses the title block,
// named as its file in the symbol folder without ".dwg". Without windows the user's answer is the
// block name; "<-->" or an empty answer stands for no block. A change of block empties the stored
// attribute values ("IT_BLOCK_ATTDATA"), which belonged to the old block's tags.

#include "framework/dialogs/ICustomDialog.h"

namespace XimoGis::AssemblySchemes {

class CCustomDlgBlockPicker : public Data::ICustomDialog {
public:
    static constexpr const wchar_t* kControlId = L"IT_BLOCK_DLG";
    static constexpr const wchar_t* kNoBlock = L"<-->";

    bool Run(Data::CPropertyEx& property, Data::CPropertiesEx* properties, const std::wstring& answer) override;
};

}  // namespace XimoGis::AssemblySchemes
