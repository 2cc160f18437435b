#include "framework/utility/CFilePath.h"

#include "host/base/AcString.h"

#include <fstream>
#include <iterator>
#include <system_error>

namespace XimoGis::Utility {

namespace fs = std::filesystem;

fs::path CFilePath::ToPath(const std::wstring& text) {
    const std::string utf8 = acutWcharToUtf8(text);
    return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

std::wstring CFilePath::ToText(const fs::path& path) {
    const std::u8string utf8 = path.u8string();
    return acutUtf8ToWchar(std::string(utf8.begin(), utf8.end()));
}

std::wstring CFilePath::Resolve(const std::wstring& path, const std::wstring& base) {
    fs::path p = ToPath(path);
    if (p.is_relative()) p = ToPath(base) / p;
    std::error_code ec;
    fs::path absolute = fs::absolute(p, ec);
    if (ec) absolute = p;
    return ToText(absolute.lexically_normal());
}

std::wstring CFilePath::AsFolder(const std::wstring& folder) {
    if (folder.empty()) return folder;
    std::wstring text = folder;
    const wchar_t separator = fs::path::preferred_separator;
    while (text.size() > 1 && text.back() == separator) text.pop_back();
    if (text.back() != separator) text += separator;
    return text;
}

bool CFilePath::ReadFile(const std::wstring& file, std::string& bytes) {
    std::ifstream in(ToPath(file), std::ios::binary);
    if (!in) return false;
    bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    return !in.bad();
}

}  // namespace XimoGis::Utility
