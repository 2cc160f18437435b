#include "fittings/CFittingSketch.h"

#include "plugins/fittings/FittingsTestSupport.h"

#include "host/entities/AcDbCircle.h"

#include <gtest/gtest.h>

using namespace XimoGis::AssemblySchemes::Fittings;

TEST(CFittingSketch, DrawsScaledAtThePointWithFlangeFacesMarked) {
    CFittingSketch sketch;
    sketch.AddFlangeFace({0, -10}, {0, 10}, 150, 10);
    sketch.AddLine({1, 1}, {1, 1});  // no size: left out
    sketch.AddCircle({10, 0}, 5);
    sketch.AddArc({0, 0}, 4, 0, 1);
    sketch.AddPolyline({{0, 0}, {2, 0}, {2, 2}}, true);
    AcArray<AcDbObjectId> ids;
    EXPECT_FALSE(sketch.Draw(AcGePoint3d::kOrigin, 1.0, ids));  // no working drawing
    EXPECT_TRUE(ids.isEmpty());

    Testing::WorkingDrawing drawing;
    ASSERT_TRUE(sketch.Draw({100, 200, 3}, 0.5, ids));
    ASSERT_EQ(ids.length(), 4);
    const auto flanges = Testing::FlangeLines(ids);
    ASSERT_EQ(flanges.size(), 1u);
    EXPECT_TRUE(flanges[0].dn == 150 && flanges[0].pn == 10);
    EXPECT_EQ(flanges[0].middle, AcGePoint3d(100, 200, 3));
    XimoGis::CXimoCEntityPtr entity(ids[1], AcDb::kForRead);
    auto* circle = dynamic_cast<AcDbCircle*>(entity.get());
    ASSERT_NE(circle, nullptr);
    EXPECT_EQ(circle->center(), AcGePoint3d(105, 200, 3));
    EXPECT_DOUBLE_EQ(circle->radius(), 2.5);
}
