#include "framework/utility/CTransform.h"

#include <gtest/gtest.h>

#include <geos/geom/GeometryFactory.h>
#include <geos/io/WKTReader.h>

#include "framework/utility/CUtility.h"
#include "host/database/AcDbDatabase.h"
#include "host/entities/AcDbPoint.h"
#include "host/entities/AcDbPolyline.h"

using XimoGis::Utility::CTransform;
using XimoGis::Utility::CUtility;

TEST(CTransform, PointsFromWktAndBack) {
    AcArray<AcGePoint3d> points;
    ASSERT_TRUE(CTransform::GetPointsFromWKT(L"LINESTRING(0 0, 0.5 -1, 1.5 1.5)", points));
    ASSERT_EQ(points.length(), 3);
    EXPECT_TRUE(points[1].isEqualTo({0.5, -1, 0}));
    ASSERT_TRUE(CTransform::GetPointsFromWKT(L"POLYGON Z((0 0 1, 1 0 1, 1 1 1, 0 0 1))", points));
    EXPECT_EQ(points.length(), 4);
    EXPECT_DOUBLE_EQ(points[2].z, 1.0);

    EXPECT_FALSE(CTransform::GetPointsFromWKT(L"LINESTRING(0 0, oops)", points));
    EXPECT_TRUE(points.isEmpty());

    const auto line = CTransform::GetGeosLineString(AcArray<AcGePoint3d>{{0, 0, 0}, {3, 4, 0}});
    ASSERT_NE(line, nullptr);
    EXPECT_DOUBLE_EQ(line->getLength(), 5.0);
    EXPECT_EQ(CTransform::GetGeosLineString(AcArray<AcGePoint3d>{{0, 0, 0}}), nullptr);
    const auto square = CTransform::GetGeosPolygon(AcArray<AcGePoint3d>{{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}});
    ASSERT_NE(square, nullptr);
    EXPECT_DOUBLE_EQ(square->getArea(), 4.0);
}

TEST(CUtility, DrawGeometryAndEraseElements) {
    AcDbDatabase db;
    acdbHostApplicationServices()->setWorkingDatabase(&db);
    geos::io::WKTReader reader(*geos::geom::GeometryFactory::getDefaultInstance());
    const auto geometry = reader.read(
        "GEOMETRYCOLLECTION(POINT(1 2), LINESTRING(0 0, 5 0, 5 5), POLYGON((0 0, 9 0, 9 9, 0 0), (1 1, 2 1, 2 2, 1 1)))");
    AcDbObjectIdArray ids;
    EXPECT_EQ(CUtility::drawGeometry(geometry.get(), 1, &ids), 4);
    ASSERT_EQ(ids.length(), 4);
    {
        AcDbObjectPointer<AcDbPoint> point(ids[0], AcDb::kForRead);
        ASSERT_TRUE(point);
        EXPECT_EQ(point->colorIndex(), 1);
        AcDbObjectPointer<AcDbPolyline> open(ids[1], AcDb::kForRead);
        ASSERT_TRUE(open);
        EXPECT_FALSE(open->isClosed());
        EXPECT_EQ(open->numVerts(), 3u);
        AcDbObjectPointer<AcDbPolyline> ring(ids[2], AcDb::kForRead);
        ASSERT_TRUE(ring);
        EXPECT_TRUE(ring->isClosed());
        EXPECT_EQ(ring->numVerts(), 3u);  // the repeated closing point is dropped
    }
    EXPECT_EQ(CUtility::drawGeometry(nullptr, 1), 0);

    AcDbObjectIdArray withNull = ids;
    withNull.append(AcDbObjectId());
    EXPECT_EQ(CUtility::EraseElements(withNull), 4);
    EXPECT_TRUE(ids[3].isErased());
    EXPECT_EQ(CUtility::EraseElements(ids), 0);  // already erased
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
}
