#include "framework/utility/CAtomicFile.h"

#include <filesystem>
#include <system_error>

#include "framework/utility/CFilePath.h"
#include "host/base/AcAtomicFile.h"
#include "host/base/AcString.h"

namespace XimoGis::Utility {

namespace fs = std::filesystem;

bool CAtomicFile::Write(const std::wstring& file, const std::string& bytes, std::wstring& error) {
    // The framework's callers write into folders that may not exist yet; the host's writer does
    // the replacing itself.
    const fs::path target = CFilePath::ToPath(file);
    std::error_code ec;
    if (target.has_parent_path()) fs::create_directories(target.parent_path(), ec);
    if (ec) {
        error = L"Cannot write \"" + file + L"\": cannot create its folder (" + acutUtf8ToWchar(ec.message()) + L")";
        return false;
    }
    if (fs::is_directory(target, ec)) {
        error = L"Cannot write \"" + file + L"\": a folder of that name is in the way";
        return false;
    }
    return acutWriteFileAtomically(file, bytes, &error) == Acad::eOk;
}

}  // namespace XimoGis::Utility
