#include "host/geometry/AcGeMatrix3d.h"

#include <gtest/gtest.h>

#include <cmath>

#include "host/geometry/AcGeLine3d.h"

namespace {
void expectNear(const AcGePoint3d& a, const AcGePoint3d& b) {
    EXPECT_NEAR(a.x, b.x, 1e-9);
    EXPECT_NEAR(a.y, b.y, 1e-9);
    EXPECT_NEAR(a.z, b.z, 1e-9);
}
}  // namespace

TEST(AcGeMatrix3d, TranslationScalingRotationAndInverse) {
    const AcGePoint3d p(1, 2, 3);
    expectNear(AcGeMatrix3d::translation({10, 0, -1}) * p, {11, 2, 2});
    expectNear(AcGeMatrix3d::scaling(2.0, {1, 1, 1}) * p, {1, 3, 5});
    expectNear(AcGeMatrix3d::rotation(M_PI / 2, AcGeVector3d::kZAxis, {1, 0, 0}) * AcGePoint3d(2, 0, 0), {1, 1, 0});

    const AcGeMatrix3d m = AcGeMatrix3d::translation({5, -3, 2}) * AcGeMatrix3d::rotation(0.7, {1, 2, 3}) *
                           AcGeMatrix3d::scaling(1.5, {4, 4, 4});
    expectNear(m.inverse() * (m * p), p);
    EXPECT_TRUE((m * m.inverse()).isEqualTo(AcGeMatrix3d::kIdentity, AcGeTol(1e-9, 1e-9)));
    EXPECT_NEAR(m.scale(), 1.5, 1e-12);
    EXPECT_TRUE(m.isUniScaledOrtho(AcGeTol(1e-9, 1e-9)));
    // Vectors ignore translation.
    const AcGeVector3d v = AcGeMatrix3d::translation({5, 5, 5}) * AcGeVector3d(1, 0, 0);
    EXPECT_TRUE(v.isEqualTo(AcGeVector3d::kXAxis));
}

TEST(AcGeMatrix3d, MirroringAboutALineReflectsInThePlan) {
    // Mirror line x = 2 (vertical): (5, 1, 7) -> (-1, 1, 7); z is kept.
    const AcGeMatrix3d m = AcGeMatrix3d::mirroring(AcGeLine3d(AcGePoint3d(2, 0, 0), AcGePoint3d(2, 10, 0)));
    expectNear(m * AcGePoint3d(5, 1, 7), {-1, 1, 7});
    EXPECT_TRUE(m.isMirroring());
    // A diagonal line y = x swaps coordinates.
    const AcGeMatrix3d d = AcGeMatrix3d::mirroring(AcGeLine3d(AcGePoint3d(0, 0, 0), AcGeVector3d(1, 1, 0)));
    expectNear(d * AcGePoint3d(3, 1, 0), {1, 3, 0});
    expectNear(d * (d * AcGePoint3d(3, 1, 0)), {3, 1, 0});
}

TEST(AcGeLine3d, IntersectionClosestPointAndCollinearity) {
    const AcGeLine3d a(AcGePoint3d(0, 0, 0), AcGeVector3d(1, 0, 0));
    const AcGeLine3d b(AcGePoint3d(5, -3, 0), AcGeVector3d(0, 2, 0));
    AcGePoint3d hit;
    ASSERT_TRUE(a.intersectWith(b, hit));
    expectNear(hit, {5, 0, 0});

    // Parallel and skew lines do not intersect.
    EXPECT_FALSE(a.intersectWith(AcGeLine3d(AcGePoint3d(0, 1, 0), AcGeVector3d(3, 0, 0)), hit));
    EXPECT_FALSE(a.intersectWith(AcGeLine3d(AcGePoint3d(0, 0, 1), AcGeVector3d(0, 1, 0)), hit));

    // A segment stops at its ends; the unbounded line does not.
    const AcGeLineSeg3d seg(AcGePoint3d(5, 1, 0), AcGePoint3d(5, 4, 0));
    EXPECT_FALSE(a.intersectWith(seg, hit));
    expectNear(seg.closestPointTo({0, 10, 0}), {5, 4, 0});
    expectNear(AcGeLine3d(AcGePoint3d(5, 1, 0), AcGePoint3d(5, 4, 0)).closestPointTo({0, 10, 0}), {5, 10, 0});

    EXPECT_TRUE(a.isColinearTo(AcGeLine3d(AcGePoint3d(7, 0, 0), AcGeVector3d(-2, 0, 0))));
    EXPECT_FALSE(a.isColinearTo(AcGeLine3d(AcGePoint3d(7, 0.001, 0), AcGeVector3d(-2, 0, 0))));
    EXPECT_TRUE(a.isParallelTo(AcGeLine3d(AcGePoint3d(7, 0.001, 0), AcGeVector3d(-2, 0, 0))));
}

TEST(AcGeVector3d, AnglesAndPerpendiculars) {
    EXPECT_NEAR(AcGeVector3d::kXAxis.angleTo(AcGeVector3d::kYAxis), M_PI / 2, 1e-12);
    EXPECT_NEAR(AcGeVector3d::kXAxis.angleTo(AcGeVector3d(0, -1, 0), AcGeVector3d::kZAxis), 1.5 * M_PI, 1e-12);
    const AcGeVector3d p = AcGeVector3d(1, 2, 0).perpVector();
    EXPECT_NEAR(p.dotProduct(AcGeVector3d(1, 2, 0)), 0.0, 1e-12);
    EXPECT_NEAR(p.length(), 1.0, 1e-12);
    AcGeVector3d r(1, 0, 0);
    r.rotateBy(M_PI / 2, AcGeVector3d::kZAxis);
    EXPECT_TRUE(r.isEqualTo(AcGeVector3d::kYAxis, AcGeTol(1e-9, 1e-9)));
}
