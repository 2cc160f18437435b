#pragma once
// Writing a whole file so that readers see either the old content or the new, never a part:
// the content goes to a temporary file beside the target, which then replaces the target.

#include <string>
#include <string_view>

#include "host/base/AcadTypes.h"

// eOk, or eFileAccessErr with error naming the file and the reason; on failure the target is as
// it was and no temporary file is left.
Acad::ErrorStatus acutWriteFileAtomically(const std::wstring& fileName, std::string_view content,
                                          std::wstring* error = nullptr);
