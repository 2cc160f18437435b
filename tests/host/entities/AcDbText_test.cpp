#include "host/entities/AcDbText.h"

#include <gtest/gtest.h>

#include "host/geometry/AcGeLine3d.h"

TEST(AcDbText, ExtentsFollowAlignmentAndMirroring) {
    AcDbText text({10, 10, 0}, L"AB", AcDbObjectId(), 2.0);
    AcDbExtents e;
    text.getGeomExtents(e);
    const double width = text.measuredWidth();
    EXPECT_GT(width, 2.0);
    EXPECT_NEAR(e.minPoint().x, 10.0, 1e-12);
    EXPECT_NEAR(e.maxPoint().x, 10.0 + width, 1e-12);

    text.setHorizontalMode(AcDb::kTextRight);
    text.setAlignmentPoint({10, 10, 0});
    text.getGeomExtents(e);
    EXPECT_NEAR(e.maxPoint().x, 10.0, 1e-12);

    // Mirrored about x = 0 the text keeps its place on the mirror image and is flagged.
    text.setHorizontalMode(AcDb::kTextLeft);
    text.transformBy(AcGeMatrix3d::mirroring(AcGeLine3d(AcGePoint3d::kOrigin, AcGeVector3d::kYAxis)));
    EXPECT_TRUE(text.isMirroredInX());
    text.getGeomExtents(e);
    EXPECT_NEAR(e.maxPoint().x, -10.0, 1e-9);
    EXPECT_NEAR(e.minPoint().x, -10.0 - width, 1e-9);
}
