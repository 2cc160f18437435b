#include "module/components/CCustomDlgBOMDataPicker.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

using XimoGis::AssemblySchemes::CCustomDlgBOMDataPicker;
using namespace XimoGis::Data;

TEST(CCustomDlgBOMDataPicker, StoresValidColumnListsInTheirStoredForm) {
    CPropertiesEx properties;
    properties.AddCategory(1098, 1098, 1098);
    auto picker = properties.AddProperty(1098, boost::make_shared<CPropertyEx>(L"IT_BOM_DATAPICKER",
                                                                                enmPropertyValueType::Text));
    properties.AddProperty(1098, boost::make_shared<CPropertyEx>(L"IT_BOM_DATA", enmPropertyValueType::Text));
    CCustomDlgBOMDataPicker dialog;
    ASSERT_TRUE(dialog.Run(*picker, &properties,
                           L"{\"Data\":{\"dataId\":\"AS_POSITION\",\"prefix\":\"<\",\"suffix\":\"'\"},"
                           L"\"Data\":{\"dataId\":\"AS_QUANTITY\",\"colWidth\":15.0,\"suffix\":\" kom\"}}"));
    const std::wstring stored = L"{#Data#:{#dataId#:#AS_POSITION#,#prefix#:#&lt;#,#suffix#:#&apos;#},"
                                L"#Data#:{#dataId#:#AS_QUANTITY#,#colWidth#:15.0,#suffix#:# kom#}}";
    EXPECT_EQ(properties.GetStrProperty(L"IT_BOM_DATA", L"", 1), stored);

    for (const wchar_t* bad : {L"", L"[1,2]", L"{\"Data\":"}) EXPECT_FALSE(dialog.Run(*picker, &properties, bad));
    EXPECT_FALSE(dialog.Run(*picker, nullptr, L"{}"));
    EXPECT_EQ(properties.GetStrProperty(L"IT_BOM_DATA", L"", 1), stored);
}
