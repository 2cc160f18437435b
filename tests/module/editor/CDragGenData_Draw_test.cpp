#include "module/editor/CDragGenData_Draw.h"

#include "module/editor/EditorFixture.h"

#include "host/entities/AcDbLine.h"

using namespace XimoGis::AssemblySchemes;
using XimoGis::CXimoCEntityPtr;

namespace {

class PlacementDrag : public Testing::EditorFixture {
protected:
    void SetUp() override {
        Testing::EditorFixture::SetUp();
        elbow = Elbow();
        drag.Start(elbow, CASEditor::GetCenterPoint(elbow), &mover,
                   [this](const AcGePoint3d& point) { return editor->GetInstanceByPosition(point); });
    }
    static AcGePoint3d Mid(AcDbObjectId id) {
        CXimoCEntityPtr entity(id, AcDb::kForRead);
        const auto* line = dynamic_cast<const AcDbLine*>(entity.get());
        return line ? AcGePoint3d((line->startPoint().x + line->endPoint().x) / 2,
                                  (line->startPoint().y + line->endPoint().y) / 2, 0)
                    : AcGePoint3d(-999, -999, -999);
    }
    AcDbObjectId LeftFlange() const { return elbow[0]; }
    AcDbObjectId TopFlange() const { return elbow[1]; }

    AcDbObjectIdArray elbow;
    CASEntityMover mover;
    CDragGenData_Draw drag;
};

}  // namespace

TEST_F(PlacementDrag, TheElementFollowsTheCursorByItsCentreAndTurnsInFifteenDegreeSteps) {
    EXPECT_EQ(drag.GetHandle(), AcGePoint3d(10, 0, 0));
    drag.OnCursor({100, 50, 0});
    EXPECT_EQ(Mid(LeftFlange()), AcGePoint3d(90, 50, 0));
    EXPECT_EQ(Mid(TopFlange()), AcGePoint3d(100, 60, 0));

    drag.SetMode(CDragGenData_Draw::eModeRotate);
    drag.OnCursor({100, 60, 0});  // straight up: a quarter turn about the handle
    EXPECT_NEAR(drag.GetRotationDegrees(), 90.0, 1e-9);
    EXPECT_EQ(Mid(LeftFlange()), AcGePoint3d(100, 40, 0));
    EXPECT_EQ(Mid(TopFlange()), AcGePoint3d(90, 50, 0));
    drag.OnCursor({100 + std::cos(0.645), 50 + std::sin(0.645), 0});  // 37 degrees: 30
    EXPECT_NEAR(drag.GetRotationDegrees(), 30.0, 1e-9);
    drag.OnCursor({100, 50, 0});  // on the handle: no direction, no change
    EXPECT_NEAR(drag.GetRotationDegrees(), 30.0, 1e-9);
    EXPECT_EQ(drag.GetMode(), CDragGenData_Draw::eModeRotate);
    EXPECT_EQ(drag.GetHandle(), AcGePoint3d(100, 50, 0));
    EXPECT_FALSE(drag.IsMirrored());
}

TEST_F(PlacementDrag, MirroringFlipsTheElementAboutItsAxisAtOnceAndMovingGoesOn) {
    drag.OnCursor({20, 0, 0});
    drag.SetMode(CDragGenData_Draw::eModeMirror);
    drag.Repeat();
    EXPECT_TRUE(drag.IsMirrored());
    EXPECT_EQ(drag.GetMode(), CDragGenData_Draw::eModeMove);
    EXPECT_EQ(Mid(LeftFlange()), AcGePoint3d(10, 0, 0));  // on the axis: stays
    EXPECT_EQ(Mid(TopFlange()), AcGePoint3d(20, -10, 0));  // now faces down
    drag.OnCursor({20, 5, 0});
    EXPECT_EQ(Mid(TopFlange()), AcGePoint3d(20, -5, 0));

    // The editor's grip button does the same, ids in any case.
    CDragGenData_Draw* shared = CASEditor::GetDragData();
    shared->Start(elbow, drag.GetHandle(), &mover, {});
    editor->OnButtonClicked(L"mirror");
    EXPECT_TRUE(shared->IsMirrored());
    EXPECT_EQ(Mid(TopFlange()), AcGePoint3d(20, 15, 0));
    editor->OnButtonClicked(L"Rotate");
    EXPECT_EQ(shared->GetMode(), CDragGenData_Draw::eModeRotate);
    editor->OnButtonClicked(L"SEL_CONN_SCHEME");
    EXPECT_EQ(shared->GetMode(), CDragGenData_Draw::eModeSchemeFlange);
    editor->OnButtonClicked(L"BOGUS");
    EXPECT_EQ(shared->GetMode(), CDragGenData_Draw::eModeSchemeFlange);
    shared->Finish();
}

TEST_F(PlacementDrag, TheChosenFlangeIsJoinedOntoTheNearestFreeFlangeOfTheSheet) {
    // A sheet with a pipe piece whose right flange, facing +x at (50, 100), is free; its left
    // flange is joined to a valve's.
    auto definition = Definition(210, 297, 0);
    const auto sheet = DrawStored(*definition, {0, 0, 0});
    const AcDbObjectIdArray pipe{Flange({30, 97, 0}, {30, 103, 0}), Flange({50, 97, 0}, {50, 103, 0}),
                                 Line({30, 100, 0}, {50, 100, 0})};
    const AcDbObjectIdArray valve{Flange({30, 96, 0}, {30, 104, 0}), Line({20, 100, 0}, {30, 100, 0})};
    sheet->CreateElementInstance(L"", L"{PIPE}", pipe);
    sheet->CreateElementInstance(L"", L"{VALVE}", valve);
    const auto free = CASFlange::FindFree(*sheet, CDragGenData_Draw::kJoinTolerance);
    ASSERT_EQ(free.size(), 1u);
    EXPECT_EQ(free[0].flange.GetId(), pipe[1]);

    // Take the elbow by its top flange, then join: it turns so that the flange faces the pipe.
    drag.SetMode(CDragGenData_Draw::eModeElementFlange);
    drag.OnCursor({10, 11, 0});
    EXPECT_EQ(drag.GetHandleFlange(), TopFlange());
    EXPECT_EQ(Mid(TopFlange()), AcGePoint3d(10, 11, 0));
    EXPECT_EQ(drag.GetMode(), CDragGenData_Draw::eModeMove);
    drag.SetMode(CDragGenData_Draw::eModeSchemeFlange);
    drag.OnCursor({60, 120, 0});
    EXPECT_EQ(drag.GetHandle(), AcGePoint3d(50, 100, 0));
    EXPECT_EQ(Mid(TopFlange()), AcGePoint3d(50, 100, 0));
    EXPECT_NEAR(drag.GetRotationDegrees(), 90.0, 1e-9);
    EXPECT_EQ(Mid(LeftFlange()), AcGePoint3d(60, 90, 0));  // on the far side of the joint

    // Off every sheet there is nothing to join: the element just follows.
    drag.OnCursor({1000, 1000, 0});
    EXPECT_EQ(Mid(TopFlange()), AcGePoint3d(1000, 1000, 0));
}
