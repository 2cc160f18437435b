#include "module/components/CCustomDlgBlockPicker.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

using XimoGis::AssemblySchemes::CCustomDlgBlockPicker;
using namespace XimoGis::Data;

TEST(CCustomDlgBlockPicker, ChoosesTheBlockAndForgetsTheOldBlocksValues) {
    CPropertiesEx properties;
    properties.AddCategory(994, 994, 994);
    properties.AddProperty(994, boost::make_shared<CPropertyEx>(L"IT_BLOCK_NAME", enmPropertyValueType::Text,
                                                                eEditorCustomDialog, 464, 464));
    properties.AddProperty(994, boost::make_shared<CPropertyEx>(L"IT_BLOCK_ATTDATA", enmPropertyValueType::Text,
                                                                eEditorNone));
    properties.SetPropertyValue(L"IT_BLOCK_NAME", L"IT_A4");
    properties.SetPropertyValue(L"IT_BLOCK_ATTDATA", L"DATE:2024;");
    CPropertyEx& name = *properties.GetProperty(L"IT_BLOCK_NAME");
    CCustomDlgBlockPicker dialog;

    // The same block keeps its values.
    ASSERT_TRUE(dialog.Run(name, &properties, L"IT_A4"));
    EXPECT_EQ(properties.GetStrProperty(L"IT_BLOCK_ATTDATA", L"", 1), L"DATE:2024;");

    ASSERT_TRUE(dialog.Run(name, &properties, L"IT_A3"));
    EXPECT_EQ(properties.GetStrProperty(L"IT_BLOCK_NAME", L"", 1), L"IT_A3");
    EXPECT_EQ(properties.GetStrProperty(L"IT_BLOCK_ATTDATA", L"x", 1), L"");

    properties.SetPropertyValue(L"IT_BLOCK_ATTDATA", L"DATE:2024;");
    ASSERT_TRUE(dialog.Run(name, &properties, CCustomDlgBlockPicker::kNoBlock));
    EXPECT_EQ(properties.GetStrProperty(L"IT_BLOCK_NAME", L"x", 1), L"");
    EXPECT_EQ(properties.GetStrProperty(L"IT_BLOCK_ATTDATA", L"x", 1), L"");

    // Without the property set only the name changes.
    ASSERT_TRUE(dialog.Run(name, nullptr, L"IT_A4"));
    EXPECT_EQ(name.GetValue().GetText(), L"IT_A4");
}
