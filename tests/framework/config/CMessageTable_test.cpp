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

namespace {

// Every message number the assembly-scheme module asks for: property names, descriptions and
// categories, prompts, keywords, tooltips, progress titles and log texts.
const int kModuleMessages[] = {
    228, 230, 273, 425, 429, 464, 897, 899, 912, 919, 972, 994, 1098, 1147, 1219, 1255, 1284, 1285,
    1286, 1300, 1505, 1582, 3000, 3195, 3288, 3457, 3785, 4191, 4382, 4712, 4761, 5160, 6039, 6260,
    6601, 6617, 6618, 6620, 6621, 6622, 6623, 6624, 6794, 6817, 6821, 6822, 6824, 6826, 6827, 6839,
    6840, 6841, 8122, 8123, 8124, 8125, 8126, 8127, 8131, 8232, 8324, 8749, 9345, 9351, 9472, 9481,
    9483, 9493, 9933, 9941, 9942, 9943, 9944, 9945, 9953, 9954, 9955, 9956, 9957, 9964, 9965, 9968,
    9977, 9978, 9979, 9987, 9988, 9993, 9994, 21000, 22021, 22023, 22024, 22051, 22212, 22230,
    22271, 22336};

CMessageTable LoadShipped(const char* language) {
    CMessageTable table;
    std::wstring error;
    const std::string file = std::string(XIMO_SOURCE_DIR) + "/data/messages/" + language + ".txt";
    EXPECT_TRUE(table.Load(std::wstring(file.begin(), file.end()), error)) << error;
    return table;
}

}  // namespace

TEST(CMessageTable, ShippedTablesCoverEveryModuleMessageInBothLanguages) {
    const CMessageTable en = LoadShipped("en");
    const CMessageTable hr = LoadShipped("hr");
    for (int number : kModuleMessages) {
        EXPECT_TRUE(en.Has(number)) << "en lacks " << number;
        EXPECT_TRUE(hr.Has(number)) << "hr lacks " << number;
        EXPECT_FALSE(en.GetText(number).empty()) << number;
        EXPECT_FALSE(hr.GetText(number).empty()) << number;
    }
    EXPECT_EQ(en.GetCount(), hr.GetCount());
    EXPECT_EQ(en.GetText(9977), L"Mirror");
    EXPECT_EQ(en.GetText(22021), L"Rotate");
    EXPECT_EQ(hr.GetText(22021), L"Rotiraj");
    EXPECT_EQ(hr.GetText(8122), L"\u0160irina papira");
    EXPECT_EQ(hr.GetText(9988), L"Odabir monta\u017Enog elementa");
    // Keywords of the placement prompt cannot hold spaces.
    for (int keyword : {9977, 22021, 22023, 22024}) {
        EXPECT_EQ(en.GetText(keyword).find(L' '), std::wstring::npos) << keyword;
        EXPECT_EQ(hr.GetText(keyword).find(L' '), std::wstring::npos) << keyword;
    }
}
