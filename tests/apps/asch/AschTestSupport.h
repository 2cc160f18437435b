#pragma once
// Runs the built asch binary and captures its exit code and both output streams.

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace aschtest {

struct Result {
    int code = -1;
    std::string out;
    std::string err;
};

inline std::string readAll(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// A fresh folder for one test, removed with the object.
class TempFolder {
public:
    explicit TempFolder(const std::string& name)
        : m_path(std::filesystem::temp_directory_path() / ("asch_" + name + "_" + std::to_string(::getpid()))) {
        std::filesystem::remove_all(m_path);
        std::filesystem::create_directories(m_path);
    }
    ~TempFolder() { std::filesystem::remove_all(m_path); }
    const std::filesystem::path& path() const { return m_path; }
    std::string operator/(const std::string& name) const { return (m_path / name).string(); }

private:
    std::filesystem::path m_path;
};

// arguments are passed to the shell as written: quote what needs it.
inline Result run(const std::string& arguments) {
    const TempFolder streams("streams");
    const std::string command = std::string("'") + XIMO_ASCH_PATH + "' " + arguments + " >'" + streams / "out" +
                                "' 2>'" + streams / "err" + "' </dev/null";
    const int status = std::system(command.c_str());
    Result result;
    result.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    result.out = readAll(streams / "out");
    result.err = readAll(streams / "err");
    return result;
}

}  // namespace aschtest
