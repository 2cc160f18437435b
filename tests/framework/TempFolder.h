#pragma once
// A fresh folder under the system's temporary folder for one test, removed afterwards.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "framework/utility/CUtility.h"

namespace XimoGis::Testing {

class TempFolder {
public:
    TempFolder()
        : m_path(std::filesystem::temp_directory_path() /
                 ("ximo_test_" + std::to_string(std::hash<std::wstring>{}(Utility::CUtility::CreateGUID())))) {
        std::filesystem::create_directories(m_path);
    }
    ~TempFolder() {
        std::error_code ec;
        std::filesystem::remove_all(m_path, ec);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& Path() const { return m_path; }
    std::wstring Wide(const std::wstring& name = L"") const { return (m_path / name).wstring(); }

private:
    std::filesystem::path m_path;
};

inline std::string ReadBytes(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

inline void WriteBytes(const std::filesystem::path& file, const std::string& bytes) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
}

}  // namespace XimoGis::Testing
