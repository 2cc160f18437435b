#include "module/support/CASCheckMark.h"

#include "framework/utility/CTransform.h"
#include "host/database/AcDbDatabase.h"
#include "host/database/acdbOpenObject.h"
#include "host/entities/AcDbPolyline.h"

#include <gtest/gtest.h>

using XimoGis::AssemblySchemes::CASCheckMark;

TEST(CASCheckMark, SizeTwoDrawsTheUnitOutlineMovedToThePoint) {
    AcArray<AcGePoint3d> outline;
    ASSERT_TRUE(XimoGis::Utility::CTransform::GetPointsFromWKT(CASCheckMark::kOutlineWKT, outline));
    ASSERT_EQ(outline.length(), 25);
    EXPECT_EQ(outline.first(), outline.last());

    AcDbDatabase db;
    EXPECT_EQ(CASCheckMark::Draw({100, 50, 0}, 2.0, 3), 0);  // no drawing to draw into
    acdbHostApplicationServices()->setWorkingDatabase(&db);
    ASSERT_EQ(CASCheckMark::Draw({100, 50, 0}, 2.0, 3), 1);
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    AcDbBlockTableRecord* space = nullptr;
    ASSERT_EQ(acdbOpenObject(space, db.modelSpaceId(), AcDb::kForRead), Acad::eOk);
    const AcDbObjectId id = space->entityIds().back();
    space->close();
    AcDbObjectPointer<AcDbPolyline> mark(id, AcDb::kForRead);
    ASSERT_TRUE(mark.object());
    EXPECT_TRUE(mark->isClosed());
    EXPECT_EQ(mark->colorIndex(), 3);
    ASSERT_EQ(mark->numVerts(), 24u);
    for (unsigned i = 0; i < 24; ++i) {
        AcGePoint2d vertex;
        mark->getPointAt(i, vertex);
        EXPECT_NEAR(vertex.x, outline[static_cast<int>(i)].x + 100.0, 1e-9);
        EXPECT_NEAR(vertex.y, outline[static_cast<int>(i)].y + 50.0, 1e-9);
    }
}
