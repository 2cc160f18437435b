#include "host/input/acedInput.h"

#include <gtest/gtest.h>

#include <string>

#include "host/input/AcEdInputScript.h"

namespace {
class AcedInput : public ::testing::Test {
protected:
    void SetUp() override {
        acedInputScript()->clear();
        acedInitGet(0, nullptr);
    }
    void TearDown() override { acedInputScript()->clear(); }
    void script(const wchar_t* text) { ASSERT_TRUE(acedInputScript()->addScript(text)); }
    static std::wstring input() {
        ACHAR buffer[133] = L"";
        return acedGetInput(buffer) == RTNORM ? buffer : L"<none>";
    }
};
}  // namespace

TEST_F(AcedInput, GetPointTakesPicksAndTypedCoordinatesAndIgnoresMoves) {
    script(L"move 5,5\npick 1,2,3\ntext 10,20\ntext @1,1\ntext nonsense\npick 7,7");
    ads_point p;
    ASSERT_EQ(acedGetPoint(nullptr, L"\nPoint: ", p), RTNORM);
    EXPECT_DOUBLE_EQ(p[0], 1);
    EXPECT_DOUBLE_EQ(p[2], 3);
    ASSERT_EQ(acedGetPoint(nullptr, L"\nPoint: ", p), RTNORM);
    EXPECT_DOUBLE_EQ(p[1], 20);
    // Relative input starts from the last point entered.
    ASSERT_EQ(acedGetPoint(p, L"\nNext: ", p), RTNORM);
    EXPECT_DOUBLE_EQ(p[0], 11);
    EXPECT_DOUBLE_EQ(p[1], 21);
    // Text that is no point is refused and the prompt is shown again.
    ASSERT_EQ(acedGetPoint(nullptr, L"\nLast: ", p), RTNORM);
    EXPECT_DOUBLE_EQ(p[0], 7);
    const auto& prompts = acedInputScript()->prompts();
    ASSERT_EQ(prompts.size(), 5u);
    EXPECT_EQ(prompts[3], L"\nLast: ");
    EXPECT_EQ(prompts[4], L"\nLast: ");
}

TEST_F(AcedInput, KeywordsApplyToTheNextCallOnlyAndAnswerInGlobalForm) {
    script(L"text rotiraj\ntext rotiraj\npick 1,1");
    acedInitGet(0, L"Rotiraj Zrcali _ Rot Mir");
    ads_point p;
    ASSERT_EQ(acedGetPoint(nullptr, L"Where: ", p), RTKWORD);
    EXPECT_EQ(input(), L"Rot");
    // No acedInitGet before this call: the word means nothing and is asked again.
    EXPECT_EQ(acedGetPoint(nullptr, L"Where: ", p), RTNORM);
    EXPECT_EQ(input(), L"<none>");
}

TEST_F(AcedInput, EnterEscapeAndAnEmptyScript) {
    ads_point p;
    script(L"enter\nenter\npick 2,2\nescape");
    EXPECT_EQ(acedGetPoint(nullptr, L"A: ", p), RTNONE);
    acedInitGet(RSG_NONULL, nullptr);
    EXPECT_EQ(acedGetPoint(nullptr, L"B: ", p), RTNORM);
    EXPECT_EQ(acedGetPoint(nullptr, L"C: ", p), RTCAN);
    // Nothing left to read: the user is as good as gone.
    EXPECT_EQ(acedGetPoint(nullptr, L"D: ", p), RTCAN);
    EXPECT_EQ(acedInputScript()->prompts(), (std::vector<std::wstring>{L"A: ", L"B: ", L"B: ", L"C: ", L"D: "}));
}

TEST_F(AcedInput, OtherTextPassesAsAKeywordOnlyWithRsgOther) {
    script(L"text 12x\ntext Hello\npick 0,0");
    acedInitGet(RSG_OTHER, L"Yes No");
    ads_point p;
    EXPECT_EQ(acedGetPoint(nullptr, L"? ", p), RTKWORD);
    EXPECT_EQ(input(), L"12x");
    acedInitGet(0, L"Yes No");
    EXPECT_EQ(acedGetPoint(nullptr, L"? ", p), RTNORM);
}

TEST_F(AcedInput, NumbersHonourTheirFlagsAndRanges) {
    script(L"text 3.5\ntext 40000\ntext -2\ntext 0\ntext 4\ntext 0\ntext -1.25\ntext 1e2");
    int i = 0;
    acedInitGet(RSG_NOZERO | RSG_NONEG, nullptr);
    ASSERT_EQ(acedGetInt(L"Int: ", &i), RTNORM);
    EXPECT_EQ(i, 4);  // 3.5, 40000, -2 and 0 were refused in turn
    double r = 0;
    ASSERT_EQ(acedGetReal(L"Real: ", &r), RTNORM);
    EXPECT_EQ(r, 0.0);
    ASSERT_EQ(acedGetReal(L"Real: ", &r), RTNORM);
    EXPECT_EQ(r, -1.25);
    ASSERT_EQ(acedGetReal(L"Real: ", &r), RTNORM);
    EXPECT_EQ(r, 100.0);
    EXPECT_EQ(acedInputScript()->prompts().size(), 8u);
}

TEST_F(AcedInput, StringsAndKeywords) {
    script(L"text two words\ntext two words\nenter\npick 1,1\ntext w\ntext maybe\ntext maybe");
    ACHAR text[133];
    ASSERT_EQ(acedGetString(0, L"Name: ", text), RTNORM);
    EXPECT_STREQ(text, L"two");
    ACHAR small[5];
    ASSERT_EQ(acedGetString(1, L"Name: ", small, 5), RTNORM);
    EXPECT_STREQ(small, L"two ");
    ASSERT_EQ(acedGetString(1, L"Name: ", text), RTNORM);
    EXPECT_STREQ(text, L"");
    acedInitGet(0, L"Width Height");
    ASSERT_EQ(acedGetKword(L"Option: ", text), RTNORM);
    EXPECT_STREQ(text, L"Width");
    acedInitGet(RSG_OTHER, L"Width Height");
    ASSERT_EQ(acedGetKword(L"Option: ", text), RTNORM);
    EXPECT_STREQ(text, L"maybe");
    acedInitGet(0, L"Width Height");
    EXPECT_EQ(acedGetKword(L"Option: ", text), RTCAN);
}
