#pragma once
// The column dialog of the bill of materials, opened from "IT_BOM_DATAPICKER": it edits the
// column list kept in "IT_BOM_DATA". Without windows the user's answer is the column list itself,
// a JSON object with one "Data" member per column; it is stored with every double quote turned
// into "#" and XML-escaped, the form the bill of materials reads.

#include "framework/dialogs/ICustomDialog.h"

namespace XimoGis::AssemblySchemes {

class CCustomDlgBOMDataPicker : public Data::ICustomDialog {
public:
    static constexpr const wchar_t* kControlId = L"IT_BOM_DATAPICKER";

    // False, changing nothing, without a property set holding "IT_BOM_DATA" or when the answer
    // is not a JSON object.
    bool Run(Data::CPropertyEx& property, Data::CPropertiesEx* properties, const std::wstring& answer) override;
};

}  // namespace XimoGis::AssemblySchemes
