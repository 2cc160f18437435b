#include "host/entities/AcDbArc.h"

#include <gtest/gtest.h>

#include <cmath>

#include "host/entities/AcDbCircle.h"
#include "host/geometry/AcGeLine3d.h"

namespace {
const AcGeTol kTol(1e-9, 1e-9);
}

TEST(AcDbArc, MirroringKeepsTheCurveAndReversesItsSense) {
    // Upper half circle of radius 2 about (5, 0), mirrored about the X axis: the lower half.
    AcDbArc arc({5, 0, 0}, 2.0, 0.0, M_PI);
    AcDbExtents before;
    arc.getGeomExtents(before);
    EXPECT_NEAR(before.maxPoint().y, 2.0, 1e-12);
    ASSERT_EQ(arc.transformBy(AcGeMatrix3d::mirroring(AcGeLine3d(AcGePoint3d::kOrigin, AcGeVector3d::kXAxis))),
              Acad::eOk);
    EXPECT_NEAR(arc.sweep(), M_PI, 1e-12);
    EXPECT_NEAR(arc.pointAt(arc.startAngle() + arc.sweep() / 2).y, -2.0, 1e-9);
    AcDbExtents after;
    arc.getGeomExtents(after);
    EXPECT_NEAR(after.minPoint().y, -2.0, 1e-9);
    EXPECT_NEAR(after.maxPoint().y, 0.0, 1e-9);

    // Non-uniform scaling cannot keep a circle.
    AcGeMatrix3d stretch;
    stretch.entry[0][0] = 2.0;
    AcDbCircle circle({0, 0, 0}, AcGeVector3d::kZAxis, 1.0);
    EXPECT_EQ(circle.transformBy(stretch), Acad::eNotApplicable);
    EXPECT_EQ(circle.transformBy(AcGeMatrix3d::scaling(3.0, {1, 0, 0})), Acad::eOk);
    EXPECT_DOUBLE_EQ(circle.radius(), 3.0);
    EXPECT_TRUE(circle.center().isEqualTo({-2, 0, 0}, kTol));
}
