#pragma once
// Replacing a file so that it holds either its old or its new content, never a part of either:
// the bytes go to a temporary file beside it, which is flushed to disk and renamed over it.

#include <string>

namespace XimoGis::Utility {

class CAtomicFile {
public:
    // Creates missing folders on the way. On failure the old file is untouched, the temporary
    // file is removed, and `error` names the file and what went wrong.
    static bool Write(const std::wstring& file, const std::string& bytes, std::wstring& error);
};

}  // namespace XimoGis::Utility
