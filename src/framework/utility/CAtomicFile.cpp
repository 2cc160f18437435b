#include "framework/utility/CAtomicFile.h"

#include "framework/utility/CFilePath.h"
#include "framework/utility/CUtility.h"
#include "host/base/AcString.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

namespace XimoGis::Utility {

namespace fs = std::filesystem;

namespace {

std::wstring Describe(const std::wstring& file, const std::wstring& what, const std::string& reason) {
    return L"Cannot write \"" + file + L"\": " + what + L" (" + acutUtf8ToWchar(reason) + L")";
}

bool WriteAll(int fd, const std::string& bytes) {
    size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t n = ::write(fd, bytes.data() + done, bytes.size() - done);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        done += static_cast<size_t>(n);
    }
    return ::fsync(fd) == 0;
}

}  // namespace

bool CAtomicFile::Write(const std::wstring& file, const std::string& bytes, std::wstring& error) {
    const fs::path target = CFilePath::ToPath(file);
    std::error_code ec;
    if (target.has_parent_path()) fs::create_directories(target.parent_path(), ec);
    if (ec) {
        error = Describe(file, L"cannot create its folder", ec.message());
        return false;
    }
    if (fs::is_directory(target, ec)) {
        error = Describe(file, L"a folder of that name is in the way", "is a directory");
        return false;
    }
    fs::path temp = target;
    temp += ".tmp" + acutWcharToUtf8(CUtility::CreateGUID());
    const int fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0644);
    if (fd < 0) {
        error = Describe(file, L"cannot create a temporary file beside it", std::strerror(errno));
        return false;
    }
    const bool written = WriteAll(fd, bytes);
    const int writeErrno = errno;
    const bool closed = ::close(fd) == 0;
    if (!written || !closed) {
        error = Describe(file, L"writing failed", std::strerror(written ? errno : writeErrno));
        fs::remove(temp, ec);
        return false;
    }
    fs::rename(temp, target, ec);
    if (ec) {
        error = Describe(file, L"cannot replace it", ec.message());
        fs::remove(temp, ec);
        return false;
    }
    return true;
}

}  // namespace XimoGis::Utility
