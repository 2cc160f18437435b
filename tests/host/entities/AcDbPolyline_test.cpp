#include "host/entities/AcDbPolyline.h"

#include <gtest/gtest.h>

#include <cmath>

#include "host/entities/AcDbArc.h"
#include "host/entities/AcDbLine.h"
#include "host/geometry/AcGeLine3d.h"

TEST(AcDbPolyline, BulgesExplodeIntoArcsOnTheRightSide) {
    AcDbPolyline pl;
    pl.addVertexAt(0, {0, 0}, 1.0);  // half circle to (10, 0), bulging to the right of travel
    pl.addVertexAt(1, {10, 0}, 0.0, 0.5, 0.5);
    pl.addVertexAt(2, {10, -5});
    AcDbVoidPtrArray parts;
    ASSERT_EQ(pl.explode(parts), Acad::eOk);
    ASSERT_EQ(parts.length(), 2);
    auto* arc = dynamic_cast<AcDbArc*>(static_cast<AcDbEntity*>(parts[0]));
    ASSERT_NE(arc, nullptr);
    EXPECT_NEAR(arc->radius(), 5.0, 1e-9);
    // Positive bulge runs counter-clockwise: from (0,0) to (10,0) through (5,-5).
    EXPECT_NEAR(arc->pointAt(arc->startAngle() + arc->sweep() / 2).y, -5.0, 1e-9);
    EXPECT_NE(dynamic_cast<AcDbLine*>(static_cast<AcDbEntity*>(parts[1])), nullptr);
    for (void* p : parts) delete static_cast<AcDbEntity*>(p);

    AcDbExtents e;
    pl.getGeomExtents(e);
    EXPECT_NEAR(e.minPoint().y, -5.0, 1e-9);
    EXPECT_EQ(pl.constantWidth(), -1.0);

    // Mirroring flips bulges and keeps widths; scaling scales them.
    pl.transformBy(AcGeMatrix3d::mirroring(AcGeLine3d(AcGePoint3d::kOrigin, AcGeVector3d::kXAxis)));
    double bulge = 0.0;
    pl.getBulgeAt(0, bulge);
    EXPECT_DOUBLE_EQ(bulge, -1.0);
    pl.transformBy(AcGeMatrix3d::scaling(2.0));
    double sw = 0, ew = 0;
    pl.getWidthsAt(1, sw, ew);
    EXPECT_DOUBLE_EQ(sw, 1.0);
    pl.getGeomExtents(e);
    EXPECT_NEAR(e.maxPoint().y, 10.0, 1e-9);
    AcGePoint2d p;
    EXPECT_EQ(pl.getPointAt(7, p), Acad::eInvalidIndex);
}
