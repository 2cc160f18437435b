#include "framework/config/CMessageTable.h"

#include "framework/TempFolder.h"

#include <gtest/gtest.h>

using XimoGis::CMessageTable;

TEST(CMessageTable, ReadsNumbersTextsAndSkipsComments) {
    CMessageTable table;
    std::wstring error;
    ASSERT_TRUE(table.Parse("\xEF\xBB\xBF# comment\r\n\r\n12\tOne two\r\n7\t\xC5\xBEuta \\\\ \\tkocka\\n\n", L"t.txt",
                            error))
        << error;
    EXPECT_EQ(table.GetCount(), 2u);
    EXPECT_EQ(table.GetText(12), L"One two");
    EXPECT_EQ(table.GetText(7), L"\u017Euta \\ \tkocka\n");
    EXPECT_TRUE(table.Has(7));
}

TEST(CMessageTable, UnknownNumberGivesPlaceholder) {
    CMessageTable table;
    EXPECT_EQ(table.GetText(22021), L"#22021");
    EXPECT_FALSE(table.Has(22021));
}

TEST(CMessageTable, BadLinesAreReportedWithFileAndLineAndKeepOldTexts) {
    CMessageTable table;
    std::wstring error;
    ASSERT_TRUE(table.Parse("1\tkept\n", L"old.txt", error));
    EXPECT_FALSE(table.Parse("# c\n2\tfine\nthree\tbad\n", L"bad.txt", error));
    EXPECT_EQ(error, L"bad.txt(3): expected a message number and a tab");
    EXPECT_FALSE(table.Parse("2 no tab\n", L"bad.txt", error));
    EXPECT_FALSE(table.Parse("2\ta\n2\tb\n", L"bad.txt", error));
    EXPECT_EQ(error, L"bad.txt(2): message 2 appears twice");
    EXPECT_FALSE(table.Parse("2\tc:\\x\n", L"bad.txt", error));
    EXPECT_NE(error.find(L"bad.txt(1)"), std::wstring::npos);
    EXPECT_FALSE(table.Parse("99999999999\tbig\n", L"bad.txt", error));
    EXPECT_EQ(table.GetText(1), L"kept");
    EXPECT_EQ(table.GetSource(), L"old.txt");
}

TEST(CMessageTable, LoadsFileAndReportsMissingFile) {
    XimoGis::Testing::TempFolder folder;
    folder.Write("m.txt", "5\tPet\n");
    CMessageTable table;
    std::wstring error;
    ASSERT_TRUE(table.Load(folder.Text() + L"/m.txt", error)) << error;
    EXPECT_EQ(table.GetText(5), L"Pet");
    EXPECT_FALSE(table.Load(folder.Text() + L"/none.txt", error));
    EXPECT_NE(error.find(L"none.txt"), std::wstring::npos);
    EXPECT_EQ(table.GetText(5), L"Pet");
}
