#include "CDrawingFile.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "host/base/AcString.h"

namespace XimoGis::Asch {

bool CDrawingFile::Load(const std::wstring& fileName, AcDbDatabase& db, std::wstring& error) {
    const std::filesystem::path path(acutWcharToUtf8(fileName));
    std::error_code code;
    const auto status = std::filesystem::status(path, code);
    if (!std::filesystem::exists(status)) {
        error = L"'" + fileName + L"' does not exist";
        return false;
    }
    if (std::filesystem::is_directory(status)) {
        error = L"'" + fileName + L"' is a folder, not a drawing";
        return false;
    }
    if (!std::ifstream(path, std::ios::binary)) {
        error = L"cannot read '" + fileName + L"': " + acutUtf8ToWchar(std::strerror(errno));
        return false;
    }
    std::wstring why;
    if (db.dxfIn(fileName.c_str(), &why) != Acad::eOk) {
        error = why.empty() ? L"cannot read '" + fileName + L"' as a DXF drawing" : why;
        return false;
    }
    return true;
}

bool CDrawingFile::Save(const AcDbDatabase& db, const std::wstring& fileName, std::wstring& error) {
    std::wstring why;
    if (db.dxfOut(fileName.c_str(), &why) == Acad::eOk) return true;
    error = why.empty() ? L"cannot write '" + fileName + L"'" : why;
    return false;
}

}  // namespace XimoGis::Asch
