#include "framework/utility/CAtomicFile.h"

#include "framework/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

using XimoGis::Testing::TempFolder;
using XimoGis::Utility::CAtomicFile;

namespace {

int CountEntries(const std::filesystem::path& folder) {
    int n = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder)) ++n;
    return n;
}

}  // namespace

TEST(CAtomicFile, WritesAndReplacesWithoutLeavingTemporaryFiles) {
    TempFolder folder;
    const std::wstring file = (folder.Path() / "deep" / "er" / "doc.xml").wstring();
    std::wstring error;
    ASSERT_TRUE(CAtomicFile::Write(file, "first", error)) << error;
    EXPECT_EQ(folder.Read("deep/er/doc.xml"), "first");
    ASSERT_TRUE(CAtomicFile::Write(file, "second, longer", error)) << error;
    EXPECT_EQ(folder.Read("deep/er/doc.xml"), "second, longer");
    ASSERT_TRUE(CAtomicFile::Write(file, "", error)) << error;
    EXPECT_EQ(folder.Read("deep/er/doc.xml"), "");
    EXPECT_EQ(CountEntries(folder.Path() / "deep" / "er"), 1);
}

TEST(CAtomicFile, FailureNamesTheFileAndKeepsWhatIsThere) {
    TempFolder folder;
    folder.Write("blocked/keep.txt", "kept");
    const std::wstring onFolder = (folder.Path() / "blocked").wstring();
    std::wstring error;
    EXPECT_FALSE(CAtomicFile::Write(onFolder, "x", error));
    EXPECT_NE(error.find(onFolder), std::wstring::npos) << error;
    EXPECT_EQ(folder.Read("blocked/keep.txt"), "kept");

    // A file where a folder of the path should be.
    folder.Write("plain", "plain file");
    const std::wstring underFile = (folder.Path() / "plain" / "doc.xml").wstring();
    error.clear();
    EXPECT_FALSE(CAtomicFile::Write(underFile, "x", error));
    EXPECT_NE(error.find(underFile), std::wstring::npos) << error;
    EXPECT_EQ(folder.Read("plain"), "plain file");
    EXPECT_EQ(CountEntries(folder.Path()), 2);
}
