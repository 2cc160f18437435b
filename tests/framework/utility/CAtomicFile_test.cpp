#include "framework/utility/CAtomicFile.h"

#include "framework/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>

using XimoGis::Testing::TempFolder;
using XimoGis::Utility::CAtomicFile;

namespace {

long CountEntries(const std::filesystem::path& folder) {
    return std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator());
}

}  // namespace

TEST(CAtomicFile, ReplacesFilesAndKeepsThemOnFailure) {
    TempFolder folder;
    const std::wstring file = (folder.Path() / "deep" / "doc.xml").wstring();
    std::wstring error;
    ASSERT_TRUE(CAtomicFile::Write(file, "first, longer", error)) << error;
    ASSERT_TRUE(CAtomicFile::Write(file, "second", error)) << error;
    EXPECT_EQ(folder.Read("deep/doc.xml"), "second");
    EXPECT_EQ(CountEntries(folder.Path() / "deep"), 1);

    // A folder in the way, and a file where a folder of the path should be.
    const std::wstring onFolder = (folder.Path() / "deep").wstring();
    EXPECT_FALSE(CAtomicFile::Write(onFolder, "x", error));
    EXPECT_NE(error.find(onFolder), std::wstring::npos) << error;
    const std::wstring underFile = (folder.Path() / "deep" / "doc.xml" / "x.xml").wstring();
    EXPECT_FALSE(CAtomicFile::Write(underFile, "x", error));
    EXPECT_NE(error.find(underFile), std::wstring::npos) << error;
    EXPECT_EQ(folder.Read("deep/doc.xml"), "second");
    EXPECT_EQ(CountEntries(folder.Path() / "deep"), 1);
}
