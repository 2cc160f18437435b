#include "module/editor/CDragGenData_Draw.h"

#include "module/editor/EditorFixture.h"

#include "host/database/acdbOpenObject.h"
#include "host/entities/AcDbLine.h"

#include <cmath>

using namespace XimoGis::AssemblySchemes;

namespace {

class PlacementDrag : public Testing::EditorFixture {
protected:
    void SetUp() override {
        Testing::EditorFixture::SetUp();
        elbow = Elbow();
        drag.Start(elbow, CASEditor::GetCenterPoint(elbow), &mover,
                   [this](const AcGePoint3d& point) { return editor->GetInstanceByPosition(point); });
    }
    // The midpoint of the left (0) or the top (1) flange of the elbow.
    AcGePoint3d Middle(int which) const {
        AcDbObjectPointer<AcDbLine> line(elbow[which], AcDb::kForRead);
        return AcGePoint3d::kOrigin + ((line->startPoint() - AcGePoint3d::kOrigin) +
                                       (line->endPoint() - AcGePoint3d::kOrigin)) * 0.5;
    }

    AcDbObjectIdArray elbow;
    CASEntityMover mover;
    CDragGenData_Draw drag;
};

}  // namespace

TEST_F(PlacementDrag, TheElementFollowsTheCursorByItsCentreAndTurnsInFifteenDegreeSteps) {
    drag.OnCursor({100, 50, 0});
    EXPECT_EQ(Middle(0), AcGePoint3d(90, 50, 0));
    drag.SetMode(CDragGenData_Draw::eModeRotate);
    drag.OnCursor({100, 60, 0});  // straight up: a quarter turn about the handle
    EXPECT_NEAR(drag.GetRotationDegrees(), 90.0, 1e-9);
    EXPECT_EQ(Middle(0), AcGePoint3d(100, 40, 0));
    EXPECT_EQ(Middle(1), AcGePoint3d(90, 50, 0));
    drag.OnCursor({100 + std::cos(0.645), 50 + std::sin(0.645), 0});  // 37 degrees: 30
    EXPECT_NEAR(drag.GetRotationDegrees(), 30.0, 1e-9);
    drag.OnCursor({100, 50, 0});  // on the handle: no direction, no change
    EXPECT_NEAR(drag.GetRotationDegrees(), 30.0, 1e-9);
    EXPECT_EQ(drag.GetHandle(), AcGePoint3d(100, 50, 0));
}

TEST_F(PlacementDrag, MirroringFlipsTheElementAboutItsAxisAtOnceLikeTheGripButton) {
    drag.OnCursor({20, 0, 0});
    drag.SetMode(CDragGenData_Draw::eModeMirror);
    drag.Repeat();
    EXPECT_TRUE(drag.IsMirrored());
    EXPECT_EQ(drag.GetMode(), CDragGenData_Draw::eModeMove);
    EXPECT_EQ(Middle(0), AcGePoint3d(10, 0, 0));  // on the axis: stays
    EXPECT_EQ(Middle(1), AcGePoint3d(20, -10, 0));  // faces down now

    CDragGenData_Draw* shared = CASEditor::GetDragData();
    shared->Start(elbow, drag.GetHandle(), &mover, {});
    editor->OnButtonClicked(L"mirror");  // ids in any case
    EXPECT_EQ(Middle(1), AcGePoint3d(20, 10, 0));
    editor->OnButtonClicked(L"Sel_Conn");
    EXPECT_EQ(shared->GetMode(), CDragGenData_Draw::eModeElementFlange);
    shared->Finish();
}

TEST_F(PlacementDrag, TheHeldFlangeIsJoinedOntoTheNearestFreeFlangeOfTheSheet) {
    // A pipe piece whose right flange at (50, 100), facing +x, is free; its left one is joined
    // to a valve's.
    auto definition = Definition(210, 297, 0);
    const auto sheet = DrawStored(*definition, {0, 0, 0});
    const AcDbObjectIdArray pipe{Flange({30, 97, 0}, {30, 103, 0}), Flange({50, 97, 0}, {50, 103, 0}),
                                 Line({30, 100, 0}, {50, 100, 0})};
    sheet->CreateElementInstance(L"", L"{PIPE}", pipe);
    sheet->CreateElementInstance(L"", L"{VALVE}", {Flange({30, 96, 0}, {30, 104, 0})});
    const auto free = CASFlange::FindFree(*sheet, CDragGenData_Draw::kJoinTolerance);
    ASSERT_EQ(free.size(), 1u);
    EXPECT_EQ(free[0].flange.GetId(), pipe[1]);

    drag.SetMode(CDragGenData_Draw::eModeElementFlange);
    drag.OnCursor({10, 11, 0});  // taken by the top flange, which comes to the cursor
    EXPECT_EQ(drag.GetHandleFlange(), elbow[1]);
    EXPECT_EQ(Middle(1), AcGePoint3d(10, 11, 0));
    drag.SetMode(CDragGenData_Draw::eModeSchemeFlange);
    drag.OnCursor({60, 120, 0});
    EXPECT_EQ(Middle(1), AcGePoint3d(50, 100, 0));
    EXPECT_NEAR(drag.GetRotationDegrees(), 90.0, 1e-9);  // the flange turned to face the pipe
    EXPECT_EQ(Middle(0), AcGePoint3d(60, 90, 0));  // the elbow on the far side of the joint
    drag.OnCursor({1000, 1000, 0});  // off every sheet: nothing to join, the element follows
    EXPECT_EQ(Middle(1), AcGePoint3d(1000, 1000, 0));
}
