#include "host/base/AcAtomicFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include "host/base/AcString.h"

namespace {
Acad::ErrorStatus fail(std::wstring* error, const std::wstring& fileName, const char* reason) {
    if (error) *error = L"cannot write '" + fileName + L"': " + acutUtf8ToWchar(reason);
    return Acad::eFileAccessErr;
}
}  // namespace

Acad::ErrorStatus acutWriteFileAtomically(const std::wstring& fileName, std::string_view content, std::wstring* error) {
    if (fileName.empty()) return fail(error, fileName, "no file name");
    const std::filesystem::path target(acutWcharToUtf8(fileName));
    std::filesystem::path folder = target.parent_path();
    if (folder.empty()) folder = ".";
    std::string pattern = (folder / ("." + target.filename().string() + ".XXXXXX")).string();
    const int fd = mkstemp(pattern.data());
    if (fd < 0) return fail(error, fileName, std::strerror(errno));
    // mkstemp makes a file only its owner may read: the result keeps the target's permissions, or
    // gets those of any new file.
    struct stat existing {};
    if (stat(target.c_str(), &existing) == 0) {
        fchmod(fd, existing.st_mode & 07777);
    } else {
        const mode_t mask = umask(0);
        umask(mask);
        fchmod(fd, 0666 & ~mask);
    }
    std::FILE* file = fdopen(fd, "wb");
    if (!file) {
        const int code = errno;
        close(fd);
        std::remove(pattern.c_str());
        return fail(error, fileName, std::strerror(code));
    }
    errno = 0;
    const bool written = std::fwrite(content.data(), 1, content.size(), file) == content.size();
    const int writeError = errno;
    const bool flushed = std::fflush(file) == 0 && fsync(fileno(file)) == 0;
    const bool closed = std::fclose(file) == 0;
    if (!written || !flushed || !closed) {
        std::remove(pattern.c_str());
        return fail(error, fileName, std::strerror(writeError ? writeError : EIO));
    }
    if (std::rename(pattern.c_str(), target.c_str()) != 0) {
        const int code = errno;
        std::remove(pattern.c_str());
        return fail(error, fileName, std::strerror(code));
    }
    return Acad::eOk;
}
