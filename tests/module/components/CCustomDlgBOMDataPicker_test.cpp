#include "module/components/CCustomDlgBOMDataPicker.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

using XimoGis::AssemblySchemes::CCustomDlgBOMDataPicker;
using namespace XimoGis::Data;

namespace {

CPropertiesEx& BomProperties(CPropertiesEx& properties) {
    properties.AddCategory(1098, 1098, 1098);
    auto picker = boost::make_shared<CPropertyEx>(L"IT_BOM_DATAPICKER", enmPropertyValueType::Text,
                                                  eEditorCustomDialog, 994, 994);
    picker->SetCustomControlId(CCustomDlgBOMDataPicker::kControlId);
    properties.AddProperty(1098, picker);
    auto data = boost::make_shared<CPropertyEx>(L"IT_BOM_DATA", enmPropertyValueType::Text, eEditorNone);
    data->SetDefaultAndValue(L"");
    properties.AddProperty(1098, data);
    return properties;
}

}  // namespace

TEST(CCustomDlgBOMDataPicker, StoresTheColumnListInItsStoredForm) {
    CPropertiesEx properties;
    BomProperties(properties);
    CCustomDlgBOMDataPicker dialog;
    const std::wstring columns =
        L"{\"Data\":{\"dataId\":\"AS_POSITION\",\"colWidth\":10.0,\"precision\":0,\"prefix\":\"<\",\"suffix\":\"'\","
        L"\"dFStyle\":\"Standard\",\"dFSize\":2.5,\"dFColor\":7,\"nAlign\":0},"
        L"\"Data\":{\"dataId\":\"AS_QUANTITY\",\"colWidth\":15.0,\"precision\":2,\"prefix\":\"\",\"suffix\":\" kom\","
        L"\"dFStyle\":\"Standard\",\"dFSize\":2.5,\"dFColor\":7,\"nAlign\":1}}";
    ASSERT_TRUE(dialog.Run(*properties.GetProperty(L"IT_BOM_DATAPICKER"), &properties, columns));
    EXPECT_EQ(properties.GetStrProperty(L"IT_BOM_DATA", L"", 1),
              L"{#Data#:{#dataId#:#AS_POSITION#,#colWidth#:10.0,#precision#:0,#prefix#:#&lt;#,#suffix#:#&apos;#,"
              L"#dFStyle#:#Standard#,#dFSize#:2.5,#dFColor#:7,#nAlign#:0},"
              L"#Data#:{#dataId#:#AS_QUANTITY#,#colWidth#:15.0,#precision#:2,#prefix#:##,#suffix#:# kom#,"
              L"#dFStyle#:#Standard#,#dFSize#:2.5,#dFColor#:7,#nAlign#:1}}");
}

TEST(CCustomDlgBOMDataPicker, RefusesWhatItCannotStore) {
    CPropertiesEx properties;
    BomProperties(properties);
    properties.SetPropertyValue(L"IT_BOM_DATA", L"{}");
    CCustomDlgBOMDataPicker dialog;
    CPropertyEx& picker = *properties.GetProperty(L"IT_BOM_DATAPICKER");
    for (const wchar_t* bad : {L"", L"[1,2]", L"{\"Data\":", L"columns"})
        EXPECT_FALSE(dialog.Run(picker, &properties, bad)) << bad;
    EXPECT_FALSE(dialog.Run(picker, nullptr, L"{}"));
    EXPECT_EQ(properties.GetStrProperty(L"IT_BOM_DATA", L"x", 1), L"{}");

    CPropertiesEx without;
    without.AddCategory(1, 1, 1);
    EXPECT_FALSE(dialog.Run(picker, &without, L"{}"));
}
