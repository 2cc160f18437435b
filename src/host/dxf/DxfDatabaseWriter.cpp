#include "host/dxf/DxfDatabaseWriter.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <vector>

#include "host/base/AcString.h"
#include "host/dxf/DxfBlocksWriter.h"
#include "host/dxf/DxfFileHandles.h"
#include "host/dxf/DxfHeaderWriter.h"
#include "host/dxf/DxfObjectsWriter.h"
#include "host/dxf/DxfTablesWriter.h"
#include "host/dxf/DxfWriter.h"

namespace {
constexpr std::string_view kEnd = "  0\nEOF\n";

std::string systemError() { return std::strerror(errno); }

// A full disk or a failing device shows as a file that does not end with the EOF marker:
// the writer's stream stops writing at the first failure.
bool endsWithEof(const std::string& path) {
    std::ifstream in(path, std::ios::binary | std::ios::ate);
    if (!in) return false;
    const std::streamoff size = in.tellg();
    if (size < static_cast<std::streamoff>(kEnd.size())) return false;
    in.seekg(size - static_cast<std::streamoff>(kEnd.size()));
    std::string tail(kEnd.size(), '\0');
    in.read(tail.data(), static_cast<std::streamsize>(tail.size()));
    return in && tail == kEnd;
}

// The permissions the target has, or those a new file gets.
mode_t targetMode(const std::string& target) {
    struct stat st {};
    if (::stat(target.c_str(), &st) == 0) return st.st_mode & 07777;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

// Flushes the file to the device so that the rename never exposes a file still in the cache.
bool syncFile(const std::string& path) {
    const int fd = ::open(path.c_str(), O_RDONLY);
    if (fd < 0) return false;
    const bool ok = ::fsync(fd) == 0;
    return ::close(fd) == 0 && ok;
}
}  // namespace

Acad::ErrorStatus DxfDatabaseWriter::write(const std::wstring& fileName, std::wstring& error) const {
    std::string target = acutWcharToUtf8(fileName);
    const auto fail = [&](const std::string& problem) {
        error = fileName + L": " + acutUtf8ToWchar(problem);
        return Acad::eFileAccessErr;
    };
    if (target.empty()) return fail("no file name given");
    std::error_code ec;
    if (std::filesystem::is_directory(target, ec)) return fail("a folder of that name is in the way");
    // Through a link the file it points to is replaced, not the link.
    if (std::filesystem::is_symlink(target, ec)) {
        const auto resolved = std::filesystem::weakly_canonical(target, ec);
        if (!ec) target = resolved.string();
    }

    std::string temporary = target + ".XXXXXX";
    const int fd = ::mkstemp(temporary.data());
    if (fd < 0) return fail("cannot create a temporary file beside it: " + systemError());
    ::fchmod(fd, targetMode(target));
    ::close(fd);

    std::string problem;
    bool ok = false;
    try {
        ok = writeSections(temporary, problem);
    } catch (...) {
        std::remove(temporary.c_str());  // the caller reports what went wrong
        throw;
    }
    if (ok && !syncFile(temporary)) {
        problem = "cannot flush the temporary file to disk: " + systemError();
        ok = false;
    }
    if (ok && std::rename(temporary.c_str(), target.c_str()) != 0) {
        problem = "cannot replace the file: " + systemError();
        ok = false;
    }
    if (!ok) {
        std::remove(temporary.c_str());
        return fail(problem);
    }
    return Acad::eOk;
}

bool DxfDatabaseWriter::writeSections(const std::string& path, std::string& problem) const {
    const DxfFileHandles handles(m_db);
    DxfWriter out(path);
    if (out.openFailed()) {
        problem = "cannot open the temporary file: " + systemError();
        return false;
    }
    DxfHeaderWriter(out, m_db, handles).write();
    DxfTablesWriter(out, m_db, handles).write();
    const DxfBlocksWriter blocks(out, m_db, handles);
    blocks.writeBlocks();
    blocks.writeEntities();
    DxfObjectsWriter(out, m_db, handles).write();
    out.dxfEOF();
    out.close();
    if (out.nonFiniteValues() > 0) {
        problem = "the drawing holds " + std::to_string(out.nonFiniteValues()) +
                  " values that are not finite numbers; nothing was saved";
        return false;
    }
    if (!endsWithEof(path)) {
        problem = "writing the file failed (is the disk full?)";
        return false;
    }
    return true;
}
