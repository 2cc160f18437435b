#include "module/support/CASFormat.h"

#include <cstdarg>
#include <cwchar>
#include <vector>

namespace XimoGis::AssemblySchemes {

std::wstring CASFormat::Format(const wchar_t* format, ...) {
    if (!format) return {};
    // vswprintf reports only failure when the buffer is short, so grow it until the text fits.
    std::vector<wchar_t> buffer(128);
    for (;;) {
        va_list args;
        va_start(args, format);
        const int written = std::vswprintf(buffer.data(), buffer.size(), format, args);
        va_end(args);
        if (written >= 0 && static_cast<std::size_t>(written) < buffer.size())
            return std::wstring(buffer.data(), written);
        if (buffer.size() >= (1u << 20)) return {};
        buffer.resize(buffer.size() * 4);
    }
}

}  // namespace XimoGis::AssemblySchemes
