#include "host/input/acedGraphics.h"

#include <gtest/gtest.h>

#include "host/input/AcEdScreen.h"
#include "host/input/InputTestDrawing.h"
#include "host/input/acdbAdsName.h"
#include "host/input/acedSelectionSet.h"

namespace {
class AcedGraphics : public ::testing::Test {
protected:
    void SetUp() override {
        acedScreen()->reset();
        m_previous = acdbHostApplicationServices()->workingDatabase();
        acdbHostApplicationServices()->setWorkingDatabase(&m_db);
    }
    void TearDown() override {
        acdbHostApplicationServices()->setWorkingDatabase(m_previous);
        acedScreen()->reset();
    }
    AcDbObjectId addLine(const AcGePoint3d& from, const AcGePoint3d& to) { return addTestLine(m_db, from, to); }
    static CPoint pixel(double x, double y) {
        const ads_point world = {x, y, 0};
        CPoint p;
        EXPECT_TRUE(acedCoordFromWorldToPixel(0, world, p));
        return p;
    }

    AcDbDatabase m_db;
    AcDbDatabase* m_previous = nullptr;
};
}  // namespace

TEST_F(AcedGraphics, TransientVectorsStayUntilTheNextRedraw) {
    const ads_point a = {0, 0, 0}, b = {10, 5, 1};
    ASSERT_EQ(acedGrDraw(a, b, 1, 0), RTNORM);
    resbuf* list = acutBuildList(RTSHORT, -3, RTPOINT, a, RT3DPOINT, b, RTSHORT, 2, RTPOINT, b, RTPOINT, a, 0);
    ads_matrix shift = {{1, 0, 0, 100}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
    ASSERT_EQ(acedGrVecs(list, shift), RTNORM);
    acutRelRb(list);

    const auto& vectors = acedScreen()->transientVectors();
    ASSERT_EQ(vectors.size(), 3u);
    EXPECT_EQ(vectors[0].to, AcGePoint3d(10, 5, 1));
    EXPECT_FALSE(vectors[0].highlighted);
    EXPECT_EQ(vectors[1].color, 3);
    EXPECT_TRUE(vectors[1].highlighted);
    EXPECT_EQ(vectors[1].from, AcGePoint3d(100, 0, 0));
    EXPECT_EQ(vectors[1].to, AcGePoint3d(110, 5, 1));
    EXPECT_EQ(vectors[2].to, AcGePoint3d(100, 0, 0));  // a 2D point keeps z at 0

    ASSERT_EQ(acedRedraw(nullptr, 4), RTNORM);
    EXPECT_TRUE(acedScreen()->transientVectors().empty());
    EXPECT_EQ(acedScreen()->redrawCount(), 1);
}

TEST_F(AcedGraphics, MalformedVectorListsDrawNothing) {
    const ads_point a = {0, 0, 0};
    for (resbuf* list : {acutBuildList(RTSHORT, 1, RTPOINT, a, RTPOINT, a, RTPOINT, a, 0),  // an odd point
                         acutBuildList(RTPOINT, a, RTPOINT, a, 0),                          // no colour first
                         acutBuildList(RTSHORT, 1, RTPOINT, a, RTSHORT, 2, RTPOINT, a, 0)}) {  // colour in a pair
        EXPECT_EQ(acedGrVecs(list, nullptr), RTREJ);
        acutRelRb(list);
    }
    EXPECT_TRUE(acedScreen()->transientVectors().empty());
}

TEST_F(AcedGraphics, RedrawModesHighlightAndHideEntitiesAndSets) {
    const AcDbObjectId a = addLine({0, 0, 0}, {1, 1, 0}), b = addLine({2, 2, 0}, {3, 3, 0});
    ads_name na, nb, ss;
    acdbGetAdsName(na, a);
    acdbGetAdsName(nb, b);
    acedSSAdd(na, nullptr, ss);
    acedSSAdd(nb, ss, ss);
    ASSERT_EQ(acedRedraw(ss, 3), RTNORM);
    EXPECT_TRUE(acedScreen()->isHighlighted(a));
    EXPECT_TRUE(acedScreen()->isHighlighted(b));
    ASSERT_EQ(acedRedraw(na, 4), RTNORM);
    EXPECT_FALSE(acedScreen()->isHighlighted(a));
    EXPECT_TRUE(acedScreen()->isHighlighted(b));
    ASSERT_EQ(acedRedraw(nb, 2), RTNORM);
    EXPECT_TRUE(acedScreen()->isHidden(b));
    ASSERT_EQ(acedRedraw(nb, 1), RTNORM);
    EXPECT_FALSE(acedScreen()->isHidden(b));
    EXPECT_EQ(acedRedraw(na, 5), RTERROR);
    acedSSFree(ss);
    EXPECT_EQ(acedRedraw(ss, 3), RTERROR);
    EXPECT_EQ(acedScreen()->redrawCount(), 0);
}

TEST_F(AcedGraphics, TheViewFitsTheDrawingExtentsIntoTheScreen) {
    // An empty drawing shows the metric limits 0,0 to 420,297: 297 units over 1080 pixels.
    EXPECT_EQ(pixel(210, 148.5), CPoint(960, 540));
    EXPECT_EQ(pixel(210, 297), CPoint(960, 0));

    // A wide drawing fills the width: 0..1920 units in x map one to one onto the pixels.
    addLine({0, 0, 0}, {1920, 100, 0});
    EXPECT_EQ(pixel(0, 50), CPoint(0, 540));
    EXPECT_EQ(pixel(1920, 100), CPoint(1920, 490));
    // A tall one fills the height, and y grows downwards on the screen.
    addLine({960, -1000, 0}, {960, 1000, 0});
    EXPECT_EQ(pixel(960, 1000), CPoint(960, 0));
    EXPECT_EQ(pixel(960, -1000), CPoint(960, 1080));

    // A view that is set stays; pixels convert back to the same drawing point.
    acedScreen()->setView({0, 0, 0}, 108);
    EXPECT_EQ(pixel(10, 10), CPoint(1060, 440));
    ads_point back;
    ASSERT_TRUE(acedCoordFromPixelToWorld(2, CPoint(1060, 440), back));
    EXPECT_NEAR(back[0], 10, 1e-9);
    EXPECT_NEAR(back[1], 10, 1e-9);
    CPoint p;
    const ads_point world = {0, 0, 0};
    EXPECT_FALSE(acedCoordFromWorldToPixel(3, world, p));
}
