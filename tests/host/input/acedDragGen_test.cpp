#include "host/input/acedDragGen.h"

#include <gtest/gtest.h>

#include <vector>

#include "host/input/AcEdInputScript.h"
#include "host/input/InputTestDrawing.h"
#include "host/input/acdbAdsName.h"
#include "host/input/acedInput.h"
#include "host/input/acedSelectionSet.h"

namespace {
std::vector<AcGePoint3d> g_cursor;
int g_answer = RTNORM;

int recordCursor(ads_point point, ads_matrix matrix) {
    g_cursor.emplace_back(point[0], point[1], point[2]);
    // The host hands over a fresh identity matrix for the callback to fill.
    EXPECT_EQ(matrix[0][0], 1.0);
    EXPECT_EQ(matrix[0][3], 0.0);
    matrix[0][3] = point[0];
    return g_answer;
}

class AcedDragGen : public ::testing::Test {
protected:
    void SetUp() override {
        acedInputScript()->clear();
        acedInitGet(0, nullptr);
        g_cursor.clear();
        g_answer = RTNORM;
        ads_name name;
        acdbGetAdsName(name, addTestLine(m_db));
        acedSSAdd(name, nullptr, m_ss);
    }
    void TearDown() override {
        acedSSFree(m_ss);
        acedInputScript()->clear();
    }
    int drag() { return acedDragGen(m_ss, L"\nPlace: ", 0, recordCursor, m_result); }

    AcDbDatabase m_db;
    ads_name m_ss = {0, 0};
    ads_point m_result = {0, 0, 0};
};
}  // namespace

TEST_F(AcedDragGen, TheCallbackSeesEveryMoveAndThePick) {
    acedInputScript()->addScript(L"move 1,1\nmove 2,2\npick 3,4,5");
    ASSERT_EQ(drag(), RTNORM);
    EXPECT_EQ(g_cursor, (std::vector<AcGePoint3d>{{1, 1, 0}, {2, 2, 0}, {3, 4, 5}}));
    EXPECT_EQ(AcGePoint3d(m_result[0], m_result[1], m_result[2]), AcGePoint3d(3, 4, 5));
    EXPECT_EQ(acedInputScript()->prompts(), std::vector<std::wstring>{L"\nPlace: "});
}

TEST_F(AcedDragGen, KeywordsSwitchModesUntilAPointIsPicked) {
    // The element placement loop: placement keywords in the user's words, answered in global form.
    acedInputScript()->addScript(L"move 1,0\ntext zrcali\nmove 2,0\ntext _Elf\npick 5,5");
    const wchar_t* keywords = L"Element Shema Zrcali Rotiraj _ Elf Scf Mir Rot";
    std::vector<std::wstring> modes;
    int status = RTKWORD;
    while (status == RTKWORD) {
        acedInitGet(RSG_OTHER | RSG_NOOSNAP, keywords);
        status = drag();
        ACHAR keyword[133];
        if (status == RTKWORD && acedGetInput(keyword) == RTNORM) modes.emplace_back(keyword);
    }
    EXPECT_EQ(status, RTNORM);
    EXPECT_EQ(modes, (std::vector<std::wstring>{L"Mir", L"Elf"}));
    EXPECT_EQ(g_cursor.size(), 3u);
    EXPECT_EQ(acedInputScript()->prompts().size(), 3u);
}

TEST_F(AcedDragGen, EscapeEnterAndAnEmptyScriptEndTheDrag) {
    acedInputScript()->addScript(L"move 1,1\nescape\nenter\nenter\npick 1,2");
    EXPECT_EQ(drag(), RTCAN);
    EXPECT_EQ(drag(), RTNONE);
    acedInitGet(RSG_NONULL, nullptr);
    EXPECT_EQ(drag(), RTNORM);  // Enter was refused, the pick taken
    EXPECT_EQ(drag(), RTCAN);
    EXPECT_EQ(g_cursor.size(), 2u);
}

TEST_F(AcedDragGen, TypedCoordinatesPlaceLikeAPick) {
    acedInputScript()->addScript(L"text 7,8\ntext what");
    ASSERT_EQ(drag(), RTNORM);
    EXPECT_EQ(g_cursor, std::vector<AcGePoint3d>{AcGePoint3d(7, 8, 0)});
    // Text that is neither a keyword nor coordinates is refused; then the script runs out.
    EXPECT_EQ(drag(), RTCAN);
}

TEST_F(AcedDragGen, BadSetsAndCallbackErrorsAreErrors) {
    acedInputScript()->addScript(L"move 1,1\npick 2,2");
    g_answer = RTERROR;
    EXPECT_EQ(drag(), RTERROR);
    ads_name empty;
    acedSSAdd(nullptr, nullptr, empty);
    EXPECT_EQ(acedDragGen(empty, L"x", 0, recordCursor, m_result), RTERROR);
    acedSSFree(empty);
    EXPECT_EQ(acedDragGen(empty, L"x", 0, recordCursor, m_result), RTERROR);
    EXPECT_EQ(acedDragGen(nullptr, L"x", 0, recordCursor, m_result), RTERROR);
}
