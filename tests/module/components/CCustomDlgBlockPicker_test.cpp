#include "module/components/CCustomDlgBlockPicker.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

using XimoGis::AssemblySchemes::CCustomDlgBlockPicker;
using namespace XimoGis::Data;

TEST(CCustomDlgBlockPicker, ChoosesTheBlockAndForgetsTheOldBlocksValues) {
    CPropertiesEx properties;
    properties.AddCategory(994, 994, 994);
    auto name =
        properties.AddProperty(994, boost::make_shared<CPropertyEx>(L"IT_BLOCK_NAME", enmPropertyValueType::Text));
    properties.AddProperty(994, boost::make_shared<CPropertyEx>(L"IT_BLOCK_ATTDATA", enmPropertyValueType::Text));
    properties.SetPropertyValue(L"IT_BLOCK_NAME", L"IT_A4");
    properties.SetPropertyValue(L"IT_BLOCK_ATTDATA", L"DATE:2024;");
    CCustomDlgBlockPicker dialog;
    ASSERT_TRUE(dialog.Run(*name, &properties, L"IT_A4"));  // the same block keeps its values
    EXPECT_EQ(properties.GetStrProperty(L"IT_BLOCK_ATTDATA", L"", 1), L"DATE:2024;");
    ASSERT_TRUE(dialog.Run(*name, &properties, L"IT_A3"));
    EXPECT_EQ(properties.GetStrProperty(L"IT_BLOCK_NAME", L"", 1), L"IT_A3");
    EXPECT_EQ(properties.GetStrProperty(L"IT_BLOCK_ATTDATA", L"x", 1), L"");
    ASSERT_TRUE(dialog.Run(*name, &properties, CCustomDlgBlockPicker::kNoBlock));
    EXPECT_EQ(properties.GetStrProperty(L"IT_BLOCK_NAME", L"x", 1), L"");
}
