#pragma once
// Wide path text <-> filesystem paths. Paths go through UTF-8 so that non-ASCII folder names work
// whatever the process locale is.

#include <filesystem>
#include <string>

namespace XimoGis::Utility {

class CFilePath {
public:
    static std::filesystem::path ToPath(const std::wstring& text);
    static std::wstring ToText(const std::filesystem::path& path);
    // `path` made absolute (relative to `base` when relative) and normalised, as text.
    static std::wstring Resolve(const std::wstring& path, const std::wstring& base);
    // `folder` as text with exactly one trailing separator; empty stays empty.
    static std::wstring AsFolder(const std::wstring& folder);
    // Reads a whole file as bytes; false when it cannot be opened or read.
    static bool ReadFile(const std::wstring& file, std::string& bytes);
};

}  // namespace XimoGis::Utility
