#include "module/components/CCustomAS_DataPicker_Node.h"

#include <gtest/gtest.h>

using XimoGis::AssemblySchemes::CCustomAS_DataPicker_Node;
using namespace XimoGis::Data;

TEST(CCustomAS_DataPicker_Node, StoresTheChosenDataIdentifier) {
    CPropertyEx dataId(L"LAD_DATAID", enmPropertyValueType::Text, eEditorCustomDialog, 464, 464);
    dataId.SetDefaultAndValue(L"NODE_DEPTH");
    CCustomAS_DataPicker_Node dialog;
    EXPECT_FALSE(dialog.Run(dataId, nullptr, L""));
    ASSERT_TRUE(dialog.Run(dataId, nullptr, L"NODE_ELEVATION"));
    EXPECT_EQ(dataId.GetHiddenValue().GetText(), L"NODE_ELEVATION");
}
