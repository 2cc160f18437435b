#pragma once
// printf-style formatting into wide text, for the fixed formats of the module's stored texts
// ("%6.3f" offsets) and its number formats built from a count of decimals ("%%.%df").
// Wide formats take "%ls" for a wide string argument.

#include <string>

namespace XimoGis::AssemblySchemes {

class CASFormat {
public:
    static std::wstring Format(const wchar_t* format, ...);
};

}  // namespace XimoGis::AssemblySchemes
