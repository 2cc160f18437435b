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
    data.GetProperties()->AddCategory(464, 464, 464);
    auto source = boost::make_shared<CPropertyEx>(L"LAD_SOURCE", enmPropertyValueType::ListIndex, eEditorList);
    source->AddListChoice(L"Vrijednost čvora", 0);
    source->AddListChoice(L"Šćž ĐČ", 1);
    source->SetDefaultAndValue(L"Vrijednost čvora", 0);
    source->SetDependency(L"0:1:LAD_DATAID$0:0:LD_MANUALENTRY$1:0:LAD_DATAID$1:1:LD_MANUALENTRY");
    data.GetProperties()->AddProperty(464, source);
}

}  // namespace

TEST(CLSDrawInterfaceData, WrittenRecordsReadBackEqual) {
    CLSDrawInterfaceData original;
    Fill(original);
    const std::wstring xml = original.GetXML();
    EXPECT_EQ(xml.rfind(L"<drawInterface id=\"05TEXT\"", 0), 0u);
    CLSDrawInterfaceData back;
    std::wstring error;
    ASSERT_TRUE(back.ParseXML(xml.c_str(), &error)) << error;
    EXPECT_TRUE(back == original);
    // A record without "ppsEx" reads with an empty set.
    ASSERT_TRUE(back.ParseXML(L"<drawInterface id=\"00FRAME\"/>"));
    EXPECT_EQ(back.GetId(), L"00FRAME");
    EXPECT_TRUE(back.GetProperties()->IsEmpty());
    EXPECT_TRUE(back == CLSDrawInterfaceData(L"00FRAME", 0, 0));
}

TEST(CLSDrawInterfaceData, MalformedXmlLeavesTheRecordUntouched) {
    CLSDrawInterfaceData data;
    Fill(data);
    const std::wstring before = data.GetXML();
    for (const wchar_t* bad : {L"<drawInterface", L"<ppsEx/>", L"<drawInterface id=\"X\" mandatory=\"yes\"/>",
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
    copy.SetId(L"05MANH_T");
    copy.GetProperties()->SetPropertyValue(L"LAD_SOURCE", L"Šćž ĐČ");
    EXPECT_EQ(original.GetId(), L"05TEXT");
    EXPECT_EQ(original.GetProperties()->GetIntProperty(L"LAD_SOURCE", -1, 1), 0);
    copy.SetProperties(nullptr);
    ASSERT_TRUE(copy.GetProperties());
    EXPECT_TRUE(copy.GetProperties()->IsEmpty());
}
