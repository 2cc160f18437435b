#include "module/definitions/CASComponentData.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

using namespace XimoGis::AssemblySchemes;
using XimoGis::Longitudinal::CLSDrawInterfaceData;

TEST(CASComponentData, FreshComponentsAreEmptyAndGetDrawDataOnDemand) {
    CASComponentData component;
    EXPECT_EQ(component.GetType(), eASComponentNone);
    EXPECT_DOUBLE_EQ(component.GetXOffset(), 0.0);
    EXPECT_EQ(component.GetInternalId(), L"");
    EXPECT_FALSE(component.HasDrawData());
    // Written without draw data: the writer looks at the stored pointer.
    EXPECT_EQ(component.GetXML(),
              L"<asComData type=\"0\" offx=\" 0.000\" offy=\" 0.000\" intId=\"\" prntId=\"\" ></asComData>");
    const auto drawData = component.GetDrawData();
    ASSERT_TRUE(drawData);
    EXPECT_EQ(component.GetDrawData(), drawData);
    component.SetNameMsg(1505);
    component.SetDescriptionMsg(9472);
    EXPECT_EQ(drawData->GetNameMsg(), 1505);
    EXPECT_EQ(component.GetName(), L"Frame");
    EXPECT_EQ(component.GetDescription(), L"Bill of materials");
    EXPECT_NE(component.GetXML().find(L"<drawInterface id=\"\""), std::wstring::npos);
}

TEST(CASComponentData, OffsetsAreWrittenWithThreeDecimalsInSixPlaces) {
    CASComponentData component;
    component.SetType(eASComponentText);
    component.SetInternalId(L"{T}");
    component.SetParentComponentId(L"{P}");
    for (const auto& [x, text] : {std::pair{12.3456, L"12.346"}, std::pair{-0.5, L"-0.500"},
                                  std::pair{1234.0005, L"1234.001"}, std::pair{0.0004, L" 0.000"}}) {
        component.SetXOffset(x);
        component.SetYOffset(x);
        const std::wstring value = text;
        EXPECT_EQ(component.GetXML(), L"<asComData type=\"16\" offx=\"" + value + L"\" offy=\"" + value +
                                          L"\" intId=\"{T}\" prntId=\"{P}\" ></asComData>");
    }
}

TEST(CASComponentData, ReadsLenientlyAndFailsOnlyWithoutItsElement) {
    CASComponentData component;
    ASSERT_EQ(component.ParseXML(L"<asComData type=\"64\" offx=\"-3.25\" intId=\"{I}\">"
                                 L"<drawInterface id=\"03POS\" nameMsg=\"22336\" descriptionMsg=\"22336\"/>"
                                 L"</asComData>"),
              1);
    EXPECT_EQ(component.GetType(), eASComponentPositionLabel);
    EXPECT_DOUBLE_EQ(component.GetXOffset(), -3.25);
    EXPECT_DOUBLE_EQ(component.GetYOffset(), 0.0);
    EXPECT_EQ(component.GetInternalId(), L"{I}");
    EXPECT_EQ(component.GetParentComponentId(), L"");
    EXPECT_EQ(component.GetId(), L"03POS");

    // A "drawInterface" that does not read keeps the draw data as it was; the component reads.
    ASSERT_EQ(component.ParseXML(L"<asComData type=\"x\"><drawInterface id=\"00FRAME\" mandatory=\"yes\"/>"
                                 L"</asComData>"),
              1);
    EXPECT_EQ(component.GetType(), eASComponentNone);
    EXPECT_EQ(component.GetId(), L"03POS");

    for (const wchar_t* bad : {L"<drawInterface/>", L"<asComData", L"", static_cast<const wchar_t*>(nullptr)}) {
        CASComponentData other;
        EXPECT_EQ(other.ParseXML(bad), 0);
        EXPECT_FALSE(other.HasDrawData());
    }
}

TEST(CASComponentData, CopiesShareDrawDataAndDeepCopiesRenewTheId) {
    CASComponentData source;
    source.SetType(eASComponentComment);
    source.SetXOffset(5.0);
    source.SetYOffset(6.0);
    source.SetInternalId(L"{SRC}");
    source.SetParentComponentId(L"{SCHEME}");
    source.SetDrawData(boost::make_shared<CLSDrawInterfaceData>(L"01CMMNT", 4761, 4761));

    const CASComponentData copy(source);
    EXPECT_EQ(copy.GetInternalId(), L"{SRC}");
    EXPECT_TRUE(copy.HasDrawData());

    CASComponentData deep;
    source.MakeDeepCopy(deep);
    EXPECT_EQ(deep.GetType(), eASComponentComment);
    EXPECT_DOUBLE_EQ(deep.GetYOffset(), 6.0);
    EXPECT_NE(deep.GetInternalId(), L"{SRC}");
    EXPECT_EQ(deep.GetInternalId().size(), 38u);
    EXPECT_EQ(deep.GetParentComponentId(), L"{SCHEME}");  // still the source's parent
    EXPECT_NE(deep.GetDrawData(), source.GetDrawData());
    EXPECT_TRUE(*deep.GetDrawData() == *source.GetDrawData());
    deep.GetDrawData()->SetNameMsg(1);
    EXPECT_EQ(source.GetDrawData()->GetNameMsg(), 4761);
}

TEST(CASComponentData, TextComponentsAddTheirDataPartToTheName) {
    CASComponentData text;
    text.SetType(eASComponentText);
    text.SetNameMsg(8749);
    // No data definition is known for the id, so the data part is empty after the blank.
    EXPECT_EQ(text.GetName(), L"Text ");
    text.SetType(eASComponentBOM);
    EXPECT_EQ(text.GetName(), L"Text");
}
