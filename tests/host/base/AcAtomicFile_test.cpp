#include "host/base/AcAtomicFile.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace {
std::string contentOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

struct Folder {
    std::filesystem::path path = std::filesystem::temp_directory_path() / ("atomic_" + std::to_string(::getpid()));
    Folder() { std::filesystem::create_directories(path); }
    ~Folder() { std::filesystem::remove_all(path); }
    std::size_t entries() const { return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(path), {})); }
};
}  // namespace

TEST(AcAtomicFile, ReplacesTheWholeFileAndKeepsItsPermissions) {
    const Folder folder;
    const auto file = folder.path / "sheet.svg";
    ASSERT_EQ(acutWriteFileAtomically(file.wstring(), "first"), Acad::eOk);
    EXPECT_EQ(contentOf(file), "first");
    ::chmod(file.c_str(), 0640);
    ASSERT_EQ(acutWriteFileAtomically(file.wstring(), std::string(100000, 'x')), Acad::eOk);
    EXPECT_EQ(contentOf(file), std::string(100000, 'x'));
    struct stat st {};
    ::stat(file.c_str(), &st);
    EXPECT_EQ(st.st_mode & 0777, 0640u);
    EXPECT_EQ(folder.entries(), 1u);  // no temporary file left beside it
}

TEST(AcAtomicFile, FailsNamingTheFileAndLeavesNothingBehind) {
    const Folder folder;
    std::wstring error;
    const auto missing = folder.path / "no" / "sheet.svg";
    EXPECT_EQ(acutWriteFileAtomically(missing.wstring(), "x", &error), Acad::eFileAccessErr);
    EXPECT_NE(error.find(missing.wstring()), std::wstring::npos);
    // A folder in the way of the file.
    std::filesystem::create_directories(folder.path / "taken");
    EXPECT_EQ(acutWriteFileAtomically((folder.path / "taken").wstring(), "x", &error), Acad::eFileAccessErr);
    EXPECT_TRUE(std::filesystem::is_directory(folder.path / "taken"));
    EXPECT_EQ(folder.entries(), 1u);
    EXPECT_EQ(acutWriteFileAtomically(L"", "x", &error), Acad::eFileAccessErr);
}
