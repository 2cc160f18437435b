#include "framework/data/CPropertiesExXml.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

using namespace XimoGis::Data;

namespace {

// A set that uses every feature the stored form must keep.
void Fill(CPropertiesEx& set) {
    set.AddCategory(0, 22336, 22336);
    set.AddCategory(3, 9351, 9350);
    auto style = boost::make_shared<CPropertyEx>(L"LABEL_STYLE", enmPropertyValueType::ListIndex, eEditorList, 5160, 1);
    style->AddListChoice(L"Šćž ĐČ", 0);
    style->AddListChoice(L"a \"<&>' b", 1);
    style->SetDefaultAndValue(L"Šćž ĐČ", 0);
    style->SelectListChoice(1);
    style->SetPictureReference(L"AS_L_LABEL_STYLE");
    style->SetRequired(true);
    style->SetDependency(L"0:1:A#B$0:0:C$1:0:A#B$1:1:C");
    set.AddProperty(0, style);
    auto data = boost::make_shared<CPropertyEx>(L"IT_BOM_DATA", enmPropertyValueType::Text, eEditorNone);
    data->SetValue(L"{#Data#:{#dataId#:#AS_QUANTITY#}}\n\tdrugi red  ");
    data->SetVisible(false);
    set.AddProperty(0, data);
    auto picker = boost::make_shared<CPropertyEx>(L"IT_BOM_DATAPICKER", enmPropertyValueType::Text, 8, 994, 994);
    picker->SetCustomControlId(L"IT_BOM_DATAPICKER");
    picker->SetValue(L"", CPropertyValue());  // empty shown value, null hidden value
    picker->SetReadOnly(true);
    picker->SetEnabled(false);
    set.InsertProperty(3, picker, 7);
    auto scale = boost::make_shared<CPropertyEx>(L"MSMS_SCALE", enmPropertyValueType::Double);
    scale->SetDefaultAndValue(1.0 / 3.0);
    scale->SetHiddenValue(0.02);
    set.AddProperty(3, scale);
    auto big = boost::make_shared<CPropertyEx>(L"BIG", enmPropertyValueType::Long, 99, -1, 0);
    big->SetDefaultAndValue(-5000000000L);
    set.AddProperty(3, big);
}

}  // namespace

TEST(CPropertiesExXml, WrittenSetsReadBackEqual) {
    CPropertiesEx original;
    Fill(original);
    const std::wstring xml = original.GetXML();
    EXPECT_EQ(xml.rfind(L"<ppsEx version=\"1\">", 0), 0u);
    CPropertiesEx back;
    std::wstring error;
    ASSERT_TRUE(back.ParseXML(xml.c_str(), &error)) << error;
    EXPECT_TRUE(back == original);
    EXPECT_EQ(back.GetXML(), xml);
    EXPECT_EQ(back.GetProperty(L"LABEL_STYLE")->GetValue().GetText(), L"a \"<&>' b");
    EXPECT_TRUE(back.GetProperty(L"IT_BOM_DATAPICKER")->GetHiddenValue().IsNull());
    EXPECT_EQ(back.GetProperty(L"IT_BOM_DATAPICKER")->GetOrder(), 7);
    CPropertiesEx empty;
    ASSERT_TRUE(back.ParseXML(empty.GetXML().c_str()));
    EXPECT_TRUE(back.IsEmpty());
}

TEST(CPropertiesExXml, MissingOptionalAttributesTakeDefaultsAndUnknownElementsAreSkipped) {
    CPropertiesEx set;
    ASSERT_TRUE(set.ParseXML(L"<ppsEx><note/><category order=\"2\"><property tag=\"T\" type=\"integer\" order=\"4\">"
                             L"<value text=\"3\"/><extra/></property></category></ppsEx>"));
    const auto p = set.GetProperty(L"T");
    ASSERT_TRUE(p);
    EXPECT_EQ(p->GetOrder(), 4);
    EXPECT_TRUE(p->IsVisible() && p->IsEnabled() && !p->IsRequired() && !p->IsReadOnly());
    EXPECT_TRUE(p->GetHiddenValue().IsNull());
    EXPECT_EQ(set.GetIntProperty(L"T", 0, 1), 3);
}

TEST(CPropertiesExXml, MalformedInputFailsAndLeavesTheSetUntouched) {
    const std::wstring cat = L"<ppsEx><category order=\"0\">", end = L"</category></ppsEx>";
    const std::wstring bad[] = {
        L"",
        cat,
        L"<props/>",
        L"<ppsEx version=\"2\"/>",
        L"<ppsEx><category/></ppsEx>",
        L"<ppsEx><category order=\"1\"/><category order=\"1\"/></ppsEx>",
        cat + L"<property type=\"text\" order=\"1\"/>" + end,
        cat + L"<property tag=\"A\" type=\"color\" order=\"1\"/>" + end,
        cat + L"<property tag=\"A\" type=\"text\"/>" + end,
        cat + L"<property tag=\"A\" type=\"text\" order=\"1\" visible=\"2\"/>" + end,
        cat + L"<property tag=\"A\" type=\"text\" order=\"1\" dependency=\"1:1\"/>" + end,
        cat + L"<property tag=\"A\" type=\"listIndex\" order=\"1\"><choice text=\"x\"/></property>" + end,
        // Fails only after the first property was read.
        cat + L"<property tag=\"A\" type=\"text\" order=\"1\"/><property tag=\"A\" type=\"text\" order=\"2\"/>" + end,
    };
    CPropertiesEx set;
    Fill(set);
    const std::wstring before = set.GetXML();
    for (const std::wstring& text : bad) {
        std::wstring error;
        EXPECT_FALSE(set.ParseXML(text.c_str(), &error)) << text;
        EXPECT_FALSE(error.empty()) << text;
        EXPECT_EQ(set.GetXML(), before) << text;
    }
    EXPECT_FALSE(set.ParseXML(nullptr));
}
