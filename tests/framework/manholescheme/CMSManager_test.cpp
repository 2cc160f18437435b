#include "framework/manholescheme/CMSManager.h"

#include "framework/manholescheme/CManholeShapeProperties.h"

#include <gtest/gtest.h>

using XimoGis::ManholeScheme::CManholeShapeProperties;
using XimoGis::ManholeScheme::CMSManager;

TEST(CMSManager, ComponentsAreCopiesWithTheManholeShape) {
    auto* manager = CMSManager::Instance();
    EXPECT_EQ(manager->GetComponentIds(), (std::vector<std::wstring>{L"MSC_MANHOLESHAPE", L"MSC_MANHOLESHAPE_FRONT"}));
    auto front = manager->GetComponentById(L"MSC_MANHOLESHAPE_FRONT");
    auto top = manager->GetComponentById(L"MSC_MANHOLESHAPE");
    ASSERT_TRUE(front && top);
    EXPECT_EQ(front->GetNameMsg(), 9944);
    EXPECT_EQ(top->GetNameMsg(), 9943);
    for (const wchar_t* tag : {L"MSMS_SHAFT_DIAMETER", L"MSMS_DEPTH", L"MSMS_WALL_THICKNESS", L"MSMS_COVER_DIAMETER",
                               L"MSMS_WALL_COLOR", L"MSMS_PIPE_COLOR", L"MSMS_SCALE", L"MSMS_UNIT"}) {
        EXPECT_TRUE(front->GetProperties()->GetProperty(tag)) << tag;
        EXPECT_TRUE(top->GetProperties()->GetProperty(tag)) << tag;
    }
    EXPECT_TRUE(front->GetProperties()->GetProperty(L"MSMS_BOTTOM_THICKNESS"));
    EXPECT_FALSE(top->GetProperties()->GetProperty(L"MSMS_BOTTOM_THICKNESS"));  // not seen from above

    // A caller's change stays in its copy.
    front->GetProperties()->GetProperty(L"MSMS_SCALE")->SetHiddenValue(0.5);
    front->SetId(L"05MANH_S");
    const auto again = manager->GetComponentById(L"MSC_MANHOLESHAPE_FRONT");
    EXPECT_EQ(again->GetId(), L"MSC_MANHOLESHAPE_FRONT");
    EXPECT_EQ(again->GetProperties()->GetDblProperty(L"MSMS_SCALE", 0.0, 1), 0.1);
    EXPECT_FALSE(manager->GetComponentById(L"msc_manholeshape"));
}

TEST(CManholeShapeProperties, TheDrawingFactorFollowsScaleAndUnit) {
    auto properties = CManholeShapeProperties::Create(true);
    EXPECT_DOUBLE_EQ(CManholeShapeProperties::GetDrawingFactor(*properties), 100.0);  // 1:10 in millimetres
    ASSERT_TRUE(properties->GetProperty(L"MSMS_UNIT")->SelectListChoice(2));
    properties->GetProperty(L"MSMS_SCALE")->SetHiddenValue(0.5);
    EXPECT_DOUBLE_EQ(CManholeShapeProperties::GetDrawingFactor(*properties), 0.5);  // metres at 1:2
    ASSERT_TRUE(properties->GetProperty(L"MSMS_UNIT")->SelectListChoice(1));
    EXPECT_DOUBLE_EQ(CManholeShapeProperties::GetDrawingFactor(*properties), 50.0);
    properties->GetProperty(L"MSMS_UNIT")->SetHiddenValue(7);
    EXPECT_EQ(CManholeShapeProperties::GetDrawingFactor(*properties), 0.0);
}
