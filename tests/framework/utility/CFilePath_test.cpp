#include "framework/utility/CFilePath.h"

#include "framework/TempFolder.h"

#include <gtest/gtest.h>

using XimoGis::Utility::CFilePath;

TEST(CFilePath, ResolveAgainstBaseAndNormalise) {
    EXPECT_EQ(CFilePath::Resolve(L"install", L"/ws/"), L"/ws/install");
    EXPECT_EQ(CFilePath::Resolve(L"./a/../b/", L"/ws"), L"/ws/b/");
    EXPECT_EQ(CFilePath::Resolve(L"/opt/x", L"/ws"), L"/opt/x");
    EXPECT_EQ(CFilePath::AsFolder(L"/ws/b"), L"/ws/b/");
    EXPECT_EQ(CFilePath::AsFolder(L"/ws/b//"), L"/ws/b/");
    EXPECT_EQ(CFilePath::AsFolder(L"/"), L"/");
    EXPECT_EQ(CFilePath::AsFolder(L""), L"");
}

TEST(CFilePath, NonAsciiNamesRoundTripThroughTheFileSystem) {
    XimoGis::Testing::TempFolder folder;
    const std::wstring file = folder.Text() + L"/\u0161ahti\u0107.txt";
    folder.Write("\xC5\xA1\x61hti\xC4\x87.txt", "okno");
    std::string bytes;
    ASSERT_TRUE(CFilePath::ReadFile(file, bytes));
    EXPECT_EQ(bytes, "okno");
    EXPECT_EQ(CFilePath::ToText(CFilePath::ToPath(file)), file);
    EXPECT_FALSE(CFilePath::ReadFile(folder.Text() + L"/none.txt", bytes));
}
