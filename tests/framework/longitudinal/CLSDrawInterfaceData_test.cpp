#include "framework/longitudinal/CLSDrawInterfaceData.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

using namespace XimoGis::Data;
using XimoGis::Longitudinal::CLSDrawInterfaceData;

namespace {

void Fill(CLSDrawInterfaceData& data) {
    data.SetId(L"05TEXT");
    data.SetNameMsg(3288);
    data.SetDescriptionMsg(3289);
    data.SetMandatory(true);
    data.SetTargetLocation(2);
    data.SetHeader(true);
    const auto& set = data.GetProperties();
    set->AddCategory(464, 464, 464);
    auto source = boost::make_shared<CPropertyEx>(L"LAD_SOURCE", enmPropertyValueType::ListIndex, eEditorList, 9483,
                                                  9483);
    source->AddListChoice(L"Vrijednost čvora", 0);
    source->AddListChoice(L"Šćž ĐČ", 1);
    source->SetDefaultAndValue(L"Vrijednost čvora", 0);
    source->SetDependency(L"0:1:LAD_DATAID$0:0:LD_MANUALENTRY$1:0:LAD_DATAID$1:1:LD_MANUALENTRY");
    set->AddProperty(464, source);
    auto prefix = boost::make_shared<CPropertyEx>(L"LD_PREFIX", enmPropertyValueType::Text);
    prefix->SetDefaultAndValue(L"Ø ");
    set->AddProperty(464, prefix);
}

}  // namespace

TEST(CLSDrawInterfaceData, WrittenRecordsReadBackEqual) {
    CLSDrawInterfaceData original;
    Fill(original);
    const std::wstring xml = original.GetXML();
    EXPECT_EQ(xml.rfind(L"<drawInterface id=\"05TEXT\"", 0), 0u);
    EXPECT_NE(xml.find(L"<ppsEx"), std::wstring::npos);
    CLSDrawInterfaceData back;
    std::wstring error;
    ASSERT_TRUE(back.ParseXML(xml.c_str(), &error)) << error;
    EXPECT_TRUE(back == original);
    EXPECT_EQ(back.GetProperties()->GetProperty(L"LAD_SOURCE")->GetListChoices().back().text, L"Šćž ĐČ");

    CLSDrawInterfaceData empty, emptyBack;
    Fill(emptyBack);
    ASSERT_TRUE(emptyBack.ParseXML(empty.GetXML().c_str()));
    EXPECT_TRUE(emptyBack == empty);
    ASSERT_TRUE(emptyBack.ParseXML(L"<drawInterface id=\"00FRAME\"/>"));
    EXPECT_EQ(emptyBack.GetId(), L"00FRAME");
    EXPECT_TRUE(emptyBack.GetProperties()->IsEmpty());
}

TEST(CLSDrawInterfaceData, MalformedXmlLeavesTheRecordUntouched) {
    CLSDrawInterfaceData data;
    Fill(data);
    const std::wstring before = data.GetXML();
    for (const wchar_t* bad : {L"<drawInterface", L"<ppsEx/>", L"<drawInterface nameMsg=\"a\"/>",
                               L"<drawInterface id=\"X\" mandatory=\"yes\"/>",
                               L"<drawInterface id=\"X\"><ppsEx version=\"9\"/></drawInterface>"}) {
        std::wstring error;
        EXPECT_FALSE(data.ParseXML(bad, &error)) << bad;
        EXPECT_FALSE(error.empty()) << bad;
        EXPECT_EQ(data.GetXML(), before) << bad;
    }
}

TEST(CLSDrawInterfaceData, DeepCopiesAreIndependent) {
    CLSDrawInterfaceData original;
    Fill(original);
    CLSDrawInterfaceData copy;
    original.MakeDeepCopy(copy);
    EXPECT_TRUE(copy == original);
    EXPECT_NE(copy.GetProperties(), original.GetProperties());
    copy.SetId(L"05MANH_T");
    copy.GetProperties()->SetPropertyValue(L"LAD_SOURCE", L"Šćž ĐČ");
    EXPECT_EQ(original.GetId(), L"05TEXT");
    EXPECT_EQ(original.GetProperties()->GetIntProperty(L"LAD_SOURCE", -1, 1), 0);
    EXPECT_FALSE(copy == original);
    copy.SetProperties(nullptr);
    ASSERT_TRUE(copy.GetProperties());
    EXPECT_TRUE(copy.GetProperties()->IsEmpty());
}
