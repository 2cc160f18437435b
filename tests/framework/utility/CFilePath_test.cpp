#include "framework/utility/CFilePath.h"

#include "framework/TempFolder.h"

#include <gtest/gtest.h>

using XimoGis::Utility::CFilePath;

TEST(CFilePath, ResolvesFoldersAndReadsNonAsciiNames) {
    EXPECT_EQ(CFilePath::Resolve(L"./a/../b/", L"/ws"), L"/ws/b/");
    EXPECT_EQ(CFilePath::Resolve(L"/opt/x", L"/ws"), L"/opt/x");
    EXPECT_EQ(CFilePath::AsFolder(L"/ws/b//"), L"/ws/b/");
    EXPECT_EQ(CFilePath::AsFolder(L""), L"");

    XimoGis::Testing::TempFolder folder;
    folder.Write("\xC5\xA1\x61hti\xC4\x87.txt", "okno");
    std::string bytes;
    ASSERT_TRUE(CFilePath::ReadFile(folder.Text() + L"/\u0161ahti\u0107.txt", bytes));
    EXPECT_EQ(bytes, "okno");
    EXPECT_FALSE(CFilePath::ReadFile(folder.Text() + L"/none.txt", bytes));
}
