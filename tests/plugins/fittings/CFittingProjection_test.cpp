#include "fittings/CFittingProjection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

using namespace XimoGis::AssemblySchemes;
using namespace XimoGis::AssemblySchemes::Fittings;

namespace {

constexpr double kPi = std::numbers::pi;

// The angle a made one of [-pi, pi), to compare angles that differ by whole turns.
double Turned(double a) { return std::remainder(a, 2 * kPi); }

}  // namespace

TEST(CFittingProjection, FlangesEdgeOnGiveFaceLinesAndFaceOnCircles) {
    CFittingModel pipe;  // DN 100, 500 long: flanges of 220 x 19, barrel of 118
    pipe.AddFlange(AcGePoint3d::kOrigin, -AcGeVector3d::kXAxis, 100, 16);
    pipe.AddFlange({500, 0, 0}, AcGeVector3d::kXAxis, 100, 16);
    pipe.AddTube({19, 0, 0}, {481, 0, 0}, 118, 118);
    CFittingSketch top;
    ASSERT_TRUE(CFittingProjection::Project(pipe, eViewTop, top));
    EXPECT_EQ(top.GetFlangeFaceCount(), 2);
    EXPECT_EQ(top.GetLines().size(), 10u);  // face, back and two sides per flange; the barrel's sides
    const auto face = *std::find_if(top.GetLines().begin(), top.GetLines().end(), [](auto& l) { return l.flangeFace; });
    EXPECT_TRUE(face.start.isEqualTo({0, -110}) && face.end.isEqualTo({0, 110}));
    CFittingSketch left;
    ASSERT_TRUE(CFittingProjection::Project(pipe, eViewLeft, left));
    EXPECT_TRUE(left.GetLines().empty());
    EXPECT_EQ(left.GetCircles().size(), 3u);
}

TEST(CFittingProjection, BendsShowTheirArcsFaceOnAndABandEdgeOn) {
    CFittingModel model;  // from +X turning towards +Y around (0, 100)
    model.AddBend(AcGePoint3d::kOrigin, AcGeVector3d::kXAxis, AcGeVector3d::kYAxis, 100, kPi / 2, 40);
    CFittingSketch top, bottom, front, tilted;
    ASSERT_TRUE(CFittingProjection::Project(model, eViewTop, top));
    ASSERT_EQ(top.GetArcs().size(), 2u);
    EXPECT_DOUBLE_EQ(top.GetArcs()[1].radius, 80.0);
    EXPECT_NEAR(Turned(top.GetArcs()[0].startAngle + kPi / 2), 0.0, 1e-12);
    EXPECT_NEAR(Turned(top.GetArcs()[0].endAngle), 0.0, 1e-12);
    ASSERT_TRUE(CFittingProjection::Project(model, eViewBottom, bottom));  // mirrored, still counter-clockwise
    EXPECT_NEAR(Turned(bottom.GetArcs()[0].startAngle - kPi), 0.0, 1e-12);
    EXPECT_NEAR(Turned(bottom.GetArcs()[0].endAngle + kPi / 2), 0.0, 1e-12);
    ASSERT_TRUE(CFittingProjection::Project(model, eViewFront, front));
    ASSERT_EQ(front.GetLines().size(), 2u);
    EXPECT_TRUE(front.GetLines()[0].start.isEqualTo({0, 20}) && front.GetLines()[0].end.isEqualTo({100, 20}));

    CFittingModel oblique;  // its plane is neither square to nor along the view
    oblique.AddBend(AcGePoint3d::kOrigin, AcGeVector3d::kXAxis, AcGeVector3d(0, 1, 1), 100, kPi / 2, 40);
    EXPECT_FALSE(CFittingProjection::Project(oblique, eViewTop, tilted));
}
