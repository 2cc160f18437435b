#include "framework/cad/CXimoCDraw.h"

#include <gtest/gtest.h>

#include <cmath>

#include "framework/cad/CXimoCEdit.h"
#include "host/entities/AcDbBlockReference.h"
#include "host/entities/AcDbLine.h"
#include "host/entities/AcDbPolyline.h"
#include "host/entities/AcDbText.h"

using XimoGis::CXimoCDraw;
using XimoGis::CXimoCEdit;
using XimoGis::CXimoCEntityPtr;

namespace {
// Makes a database the working one for the test's lifetime.
struct WorkingDatabase {
    AcDbDatabase db;
    WorkingDatabase() { acdbHostApplicationServices()->setWorkingDatabase(&db); }
    ~WorkingDatabase() { acdbHostApplicationServices()->setWorkingDatabase(nullptr); }
    std::size_t modelSpaceCount() const {
        AcDbBlockTableRecord* ms = nullptr;
        acdbOpenObject(ms, db.modelSpaceId(), AcDb::kForRead);
        const std::size_t n = ms->entityIds().size();
        ms->close();
        return n;
    }
};
}  // namespace

TEST(CXimoCDraw, EntitiesLandInModelSpaceOpenForWrite) {
    WorkingDatabase w;
    AcDbObjectId lineId;
    {
        CXimoCEntityPtr line = CXimoCDraw::line({0, 0, 0}, {10, 0, 0});
        ASSERT_TRUE(line);
        EXPECT_TRUE(line.isWriteEnabled());
        EXPECT_EQ(line.setColorIndex(3), Acad::eOk);
        EXPECT_EQ(line.setLinetype(L"DASHDOT"), Acad::eOk);  // loaded on demand
        EXPECT_EQ(line.setLayer(L"NO_SUCH_LAYER"), Acad::eKeyNotFound);
        lineId = line.objectId();
    }
    // Closed when the pointer went.
    CXimoCEntityPtr reopened(lineId, AcDb::kForWrite);
    ASSERT_TRUE(reopened);
    EXPECT_EQ(reopened->colorIndex(), 3);
    EXPECT_EQ(reopened->linetype(), L"DASHDOT");
    reopened.close();

    AcArray<AcGePoint3d> frame{{0, 0, 5}, {210, 0, 5}, {210, 297, 5}, {0, 297, 5}};
    CXimoCEntityPtr polyline = CXimoCDraw::polylineLW(frame, true);
    auto* pl = dynamic_cast<AcDbPolyline*>(polyline.get());
    ASSERT_NE(pl, nullptr);
    EXPECT_EQ(pl->numVerts(), 4u);
    EXPECT_TRUE(pl->isClosed());
    EXPECT_DOUBLE_EQ(pl->elevation(), 5.0);
    polyline.close();

    CXimoCEntityPtr text = CXimoCDraw::text({1, 1, 0}, L"Čvor", 3.5, 0.0, L"NoSuchStyle");
    EXPECT_EQ(static_cast<AcDbText*>(text.get())->textStyleName(), L"Standard");
    text.close();

    EXPECT_FALSE(CXimoCDraw::circle({0, 0, 0}, 0.0));  // no degenerate circles
    EXPECT_EQ(w.modelSpaceCount(), 3u);
}

TEST(CXimoCDraw, NothingIsDrawnWithoutADrawing) {
    ASSERT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
    EXPECT_FALSE(CXimoCDraw::line({0, 0, 0}, {1, 1, 0}));
}

TEST(CXimoCEdit, CopyMoveScaleRotateMirror) {
    WorkingDatabase w;
    AcDbObjectId id = CXimoCDraw::line({1, 0, 0}, {2, 0, 0}).objectId();
    AcDbObjectId copy;
    ASSERT_EQ(CXimoCEdit::copyEntity(id, copy), Acad::eOk);
    ASSERT_NE(copy, id);
    ASSERT_EQ(CXimoCEdit::moveEntity(copy, {0, 0, 0}, {0, 5, 0}), Acad::eOk);
    ASSERT_EQ(CXimoCEdit::scaleEntity(copy, 2.0, {0, 5, 0}), Acad::eOk);
    ASSERT_EQ(CXimoCEdit::rotateEntity(copy, M_PI, {0, 5, 0}), Acad::eOk);
    ASSERT_EQ(CXimoCEdit::mirrorEntity(copy, AcGeLine3d(AcGePoint3d::kOrigin, AcGeVector3d::kYAxis)), Acad::eOk);
    EXPECT_EQ(CXimoCEdit::scaleEntity(copy, 0.0, {0, 0, 0}), Acad::eInvalidInput);

    AcDbObjectPointer<AcDbLine> moved(copy, AcDb::kForRead);
    ASSERT_TRUE(moved);
    EXPECT_TRUE(moved->startPoint().isEqualTo({2, 5, 0}, AcGeTol(1e-9, 1e-9)));
    EXPECT_TRUE(moved->endPoint().isEqualTo({4, 5, 0}, AcGeTol(1e-9, 1e-9)));
    moved.close();
    AcDbObjectPointer<AcDbLine> original(id, AcDb::kForRead);
    EXPECT_TRUE(original->startPoint().isEqualTo({1, 0, 0}));

    // An entity that is open elsewhere cannot be edited, and stays as it was.
    EXPECT_EQ(CXimoCEdit::moveEntity(id, {1, 1, 1}), Acad::eWasOpenForRead);
}
