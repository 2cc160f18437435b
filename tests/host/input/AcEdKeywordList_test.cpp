#include "host/input/AcEdKeywordList.h"

#include <gtest/gtest.h>

TEST(AcEdKeywordList, LocalAndGlobalKeywordsArePairedByPosition) {
    const AcEdKeywordList list(L"Rotiraj Zrcali Element Shema _ Rot Mir Elf Scf");
    ASSERT_EQ(list.count(), 4);
    EXPECT_EQ(list.localKeyword(1), L"Zrcali");
    EXPECT_EQ(list.globalKeyword(1), L"Mir");
    // A local word, whole and in any case, answers with its global keyword.
    EXPECT_EQ(list.match(L"Zrcali"), L"Mir");
    EXPECT_EQ(list.match(L"shema"), L"Scf");
    // The global keyword itself is understood too, with or without the underscore.
    EXPECT_EQ(list.match(L"elf"), L"Elf");
    EXPECT_EQ(list.match(L"_ROT"), L"Rot");
    EXPECT_EQ(list.match(L"Kvadrat"), L"");
    EXPECT_EQ(list.match(L""), L"");
}

TEST(AcEdKeywordList, AnUnderscoredWordNamesOnlyGlobalKeywords) {
    // The local "Mir" (peace) stands for the global "Rot": only "_Mir" reaches the global "Mir".
    const AcEdKeywordList list(L"Mir Zrcali _ Rot Mir");
    EXPECT_EQ(list.match(L"Mir"), L"Rot");
    EXPECT_EQ(list.match(L"_Mir"), L"Mir");
    EXPECT_EQ(list.match(L"_Zrcali"), L"");
}

TEST(AcEdKeywordList, AbbreviationsFollowTheCapitalLetters) {
    const AcEdKeywordList list(L"LType eXit ROTATE Width,W");
    // Without an underscore each keyword is its own global.
    EXPECT_EQ(list.globalKeyword(0), L"LType");
    EXPECT_EQ(list.match(L"lt"), L"LType");
    EXPECT_EQ(list.match(L"LTy"), L"LType");
    EXPECT_EQ(list.match(L"ltype"), L"LType");
    EXPECT_EQ(list.match(L"L"), L"");
    EXPECT_EQ(list.match(L"LTX"), L"");
    // Capitals inside the word: the capitals or the whole word, nothing between.
    EXPECT_EQ(list.match(L"x"), L"eXit");
    EXPECT_EQ(list.match(L"EXIT"), L"eXit");
    EXPECT_EQ(list.match(L"ex"), L"");
    // All capitals: only the whole word.
    EXPECT_EQ(list.match(L"ROT"), L"");
    EXPECT_EQ(list.match(L"rotate"), L"ROTATE");
    // An explicit abbreviation after a comma; the comma part is not part of the keyword.
    EXPECT_EQ(list.globalKeyword(3), L"Width");
    EXPECT_EQ(list.match(L"w"), L"Width");
    EXPECT_EQ(list.match(L"wid"), L"Width");
    EXPECT_EQ(list.match(L"wd"), L"");
    EXPECT_EQ(list.match(L"Width,W"), L"");
}

TEST(AcEdKeywordList, UnpairedKeywordsStandForThemselves) {
    const AcEdKeywordList list(L"Da Ne Mozda _ Yes No");
    ASSERT_EQ(list.count(), 3);
    EXPECT_EQ(list.match(L"Mozda"), L"Mozda");
    EXPECT_TRUE(AcEdKeywordList(nullptr).isEmpty());
    EXPECT_TRUE(AcEdKeywordList(L"   ").isEmpty());
}
