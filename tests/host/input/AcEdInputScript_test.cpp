#include "host/input/AcEdInputScript.h"

#include <gtest/gtest.h>

TEST(AcEdInputScript, ScriptLinesBecomeItemsInOrder) {
    AcEdInputScript script;
    ASSERT_TRUE(script.addScript(L"move 1,2\npick 3.5,-4,7 ; text Rot\n\n  ENTER\nesc\ntext two words"));
    ASSERT_EQ(script.pendingCount(), 6u);
    AcEdInputScript::Item item;
    ASSERT_TRUE(script.next(item));
    EXPECT_EQ(item.kind, AcEdInputScript::Kind::kMove);
    EXPECT_EQ(item.point, AcGePoint3d(1, 2, 0));
    ASSERT_TRUE(script.next(item));
    EXPECT_EQ(item.kind, AcEdInputScript::Kind::kPick);
    EXPECT_EQ(item.point, AcGePoint3d(3.5, -4, 7));
    ASSERT_TRUE(script.next(item));
    EXPECT_EQ(item.kind, AcEdInputScript::Kind::kText);
    EXPECT_EQ(item.text, L"Rot");
    ASSERT_TRUE(script.next(item));
    EXPECT_EQ(item.kind, AcEdInputScript::Kind::kEnter);
    ASSERT_TRUE(script.next(item));
    EXPECT_EQ(item.kind, AcEdInputScript::Kind::kEscape);
    ASSERT_TRUE(script.next(item));
    EXPECT_EQ(item.text, L"two words");
    EXPECT_FALSE(script.next(item));
}

TEST(AcEdInputScript, ABadLineIsNamedAndNothingIsAdded) {
    AcEdInputScript script;
    script.addEnter();
    std::wstring error;
    EXPECT_FALSE(script.addScript(L"pick 1,2\nmove 1;pick x,2", &error));
    EXPECT_NE(error.find(L"line 2"), std::wstring::npos) << error;
    EXPECT_NE(error.find(L"X,Y"), std::wstring::npos) << error;
    EXPECT_FALSE(script.addScript(L"click 1,2", &error));
    EXPECT_NE(error.find(L"\"click\""), std::wstring::npos) << error;
    EXPECT_FALSE(script.addScript(L"text", &error));
    EXPECT_FALSE(script.addScript(L"enter now", &error));
    EXPECT_FALSE(script.addScript(L"pick 1,2,3,4", &error));
    EXPECT_EQ(script.pendingCount(), 1u);
}
