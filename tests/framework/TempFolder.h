#pragma once
// A fresh folder under the system's temporary folder for one test, removed afterwards.

#include <atomic>
#include <filesystem>
#include <fstream>
#include <string>

#include <unistd.h>

namespace XimoGis::Testing {

class TempFolder {
public:
    TempFolder() {
        static std::atomic<int> counter{0};
        m_path = std::filesystem::temp_directory_path() /
                 ("ximo_test_" + std::to_string(::getpid()) + "_" + std::to_string(counter++));
        std::filesystem::remove_all(m_path);
        std::filesystem::create_directories(m_path);
    }
    ~TempFolder() {
        std::error_code ec;
        std::filesystem::remove_all(m_path, ec);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& Path() const { return m_path; }
    std::wstring Text() const { return m_path.wstring(); }

    // Writes `content` (UTF-8) to `relative`, creating folders on the way.
    void Write(const std::string& relative, const std::string& content) const {
        const auto file = m_path / relative;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << content;
    }
    std::string Read(const std::string& relative) const {
        std::ifstream in(m_path / relative, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }

private:
    std::filesystem::path m_path;
};

}  // namespace XimoGis::Testing
