#include "module/definitions/CASComponentData.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

using namespace XimoGis::AssemblySchemes;
using XimoGis::Longitudinal::CLSDrawInterfaceData;

TEST(CASComponentData, DrawDataIsMadeOnDemandButWrittenOnlyWhenHeld) {
    CASComponentData component;
    EXPECT_EQ(component.GetXML(),
              L"<asComData type=\"0\" offx=\" 0.000\" offy=\" 0.000\" intId=\"\" prntId=\"\" ></asComData>");
    component.SetNameMsg(1505);
    EXPECT_TRUE(component.HasDrawData());
    EXPECT_EQ(component.GetName(), L"Frame");
    EXPECT_NE(component.GetXML().find(L"><drawInterface id=\"\" nameMsg=\"1505\""), std::wstring::npos);
    // A text component's name ends with the blank before its (unknown) data's name.
    component.SetType(eASComponentText);
    EXPECT_EQ(component.GetName(), L"Frame ");
}

TEST(CASComponentData, ReadsLenientlyAndFailsOnlyWithoutItsElement) {
    CASComponentData component;
    ASSERT_EQ(component.ParseXML(L"<asComData type=\"64\" offx=\"-3.25\" intId=\"{I}\">"
                                 L"<drawInterface id=\"03POS\" nameMsg=\"22336\"/></asComData>"),
              1);
    EXPECT_EQ(component.GetType(), eASComponentPositionLabel);
    EXPECT_DOUBLE_EQ(component.GetXOffset(), -3.25);
    EXPECT_DOUBLE_EQ(component.GetYOffset(), 0.0);
    EXPECT_EQ(component.GetParentComponentId(), L"");
    EXPECT_EQ(component.GetId(), L"03POS");
    // Draw data that does not read stays as it was; the component still reads.
    ASSERT_EQ(component.ParseXML(L"<asComData type=\"x\"><drawInterface mandatory=\"yes\"/></asComData>"), 1);
    EXPECT_EQ(component.GetType(), eASComponentNone);
    EXPECT_EQ(component.GetId(), L"03POS");
    EXPECT_EQ(component.ParseXML(L"<drawInterface/>"), 0);
    EXPECT_EQ(component.ParseXML(nullptr), 0);
}

TEST(CASComponentData, DeepCopiesRenewTheIdButKeepTheParent) {
    CASComponentData source;
    source.SetType(eASComponentComment);
    source.SetYOffset(6.0);
    source.SetInternalId(L"{SRC}");
    source.SetParentComponentId(L"{SCHEME}");
    source.SetDrawData(boost::make_shared<CLSDrawInterfaceData>(L"01CMMNT", 4761, 4761));
    EXPECT_EQ(CASComponentData(source).GetDrawData(), source.GetDrawData());  // plain copies share

    CASComponentData deep;
    source.MakeDeepCopy(deep);
    EXPECT_EQ(deep.GetType(), eASComponentComment);
    EXPECT_DOUBLE_EQ(deep.GetYOffset(), 6.0);
    EXPECT_EQ(deep.GetInternalId().size(), 38u);
    EXPECT_EQ(deep.GetParentComponentId(), L"{SCHEME}");
    EXPECT_NE(deep.GetDrawData(), source.GetDrawData());
    EXPECT_TRUE(*deep.GetDrawData() == *source.GetDrawData());
}
