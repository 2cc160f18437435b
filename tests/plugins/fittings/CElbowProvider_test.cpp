#include "fittings/CElbowProvider.h"

#include "fittings/CFittingSketch.h"
#include "plugins/fittings/FittingsTestSupport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

using namespace XimoGis::AssemblySchemes;
using namespace XimoGis::AssemblySchemes::Fittings;

TEST(CElbowProvider, TheSecondLegTurnsByTheItemsAngle) {
    CElbowProvider right(90);
    CElbowProvider half(45);
    EXPECT_EQ(half.GetProviderId(), L"FITTING_ELBOW45");
    for (const enmViewDirection view : kViewDirections) EXPECT_EQ(right.IsProjectionSupported(view), 1);
    EXPECT_EQ(half.IsProjectionSupported(eViewLeft), 0);  // along the first leg no flange is edge-on

    const auto catalog = Testing::ReadDemoCatalog();
    ASSERT_TRUE(catalog);
    auto* bend = catalog->GetItem(L"{8CB28F65-26D1-5494-8D56-5A2CC3CFD7BE}");  // Q 100, legs of 180
    bend->GetProperty(L"AS_ANGLE")->SetValue(30.0);
    CFittingSketch sketch;
    ASSERT_TRUE(right.Sketch(bend, eViewTop, sketch));
    EXPECT_EQ(sketch.GetArcs().size(), 2u);
    CFittingSketch::Line face;  // the second flange's: flanges come in order
    for (const auto& line : sketch.GetLines())
        if (line.flangeFace) face = line;
    const double angle = std::numbers::pi / 6.0;
    EXPECT_TRUE(AcGePoint2d((face.start.x + face.end.x) / 2, (face.start.y + face.end.y) / 2)
                    .isEqualTo({180 + 180 * std::cos(angle), 180 * std::sin(angle)}));
    EXPECT_NEAR((face.end.x - face.start.x) * std::cos(angle) + (face.end.y - face.start.y) * std::sin(angle), 0.0,
                1e-9);  // square to the leg
}
