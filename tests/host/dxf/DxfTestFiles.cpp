#include "host/dxf/DxfTestFiles.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

std::filesystem::path dxfTestFolder() {
    const auto* info = testing::UnitTest::GetInstance()->current_test_info();
    const auto folder = std::filesystem::temp_directory_path() / "ximo_dxf_tests" /
                        (std::string(info->test_suite_name()) + "." + info->name());
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    return folder;
}

std::string readBytes(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

void writeBytes(const std::filesystem::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}
