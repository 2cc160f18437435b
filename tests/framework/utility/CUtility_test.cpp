#include "framework/utility/CUtility.h"

#include <gtest/gtest.h>

#include <cwctype>
#include <filesystem>
#include <fstream>
#include <set>

using XimoGis::Utility::CUtility;

TEST(CUtility, GuidsAreUppercaseBracedAndDistinct) {
    std::set<std::wstring> seen;
    for (int i = 0; i < 200; ++i) {
        const std::wstring g = CUtility::CreateGUID();
        ASSERT_EQ(g.size(), 38u);
        EXPECT_EQ(g.front(), L'{');
        EXPECT_EQ(g.back(), L'}');
        EXPECT_EQ(g[9], L'-');
        EXPECT_EQ(g[15], L'4');  // version 4
        for (wchar_t c : g) EXPECT_FALSE(std::iswlower(static_cast<wint_t>(c)));
        seen.insert(g);
    }
    EXPECT_EQ(seen.size(), 200u);
}

TEST(CUtility, FileExistsOnlyForRegularFiles) {
    const auto dir = std::filesystem::temp_directory_path() / "ximo_utility_test";
    std::filesystem::create_directories(dir);
    const auto file = dir / "a.txt";
    std::ofstream(file) << "x";
    EXPECT_TRUE(CUtility::FileExists(file.wstring()));
    EXPECT_FALSE(CUtility::FileExists(dir.wstring()));
    EXPECT_FALSE(CUtility::FileExists((dir / "missing.txt").wstring()));
    EXPECT_FALSE(CUtility::FileExists(L""));
    // Names that are not ASCII go through UTF-8 whatever the process locale is.
    std::ofstream(dir / std::filesystem::path(u8"Koljena 90° (Q).dxf")) << "x";
    EXPECT_TRUE(CUtility::FileExists(dir.wstring() + L"/Koljena 90\u00B0 (Q).dxf"));
    std::filesystem::remove_all(dir);
}
