#include "host/base/AcString.h"

#include <cwctype>

std::string acutWcharToUtf8(std::wstring_view text) {
    std::string out;
    out.reserve(text.size());
    for (wchar_t wc : text) {
        auto c = static_cast<char32_t>(wc);
        if (c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) c = 0xFFFD;
        if (c < 0x80) {
            out += static_cast<char>(c);
        } else if (c < 0x800) {
            out += static_cast<char>(0xC0 | (c >> 6));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else if (c < 0x10000) {
            out += static_cast<char>(0xE0 | (c >> 12));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else {
            out += static_cast<char>(0xF0 | (c >> 18));
            out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return out;
}

std::wstring acutUtf8ToWchar(std::string_view text) {
    std::wstring out;
    out.reserve(text.size());
    std::size_t i = 0;
    const std::size_t n = text.size();
    while (i < n) {
        const auto b0 = static_cast<unsigned char>(text[i]);
        int extra = 0;
        char32_t c = 0;
        if (b0 < 0x80) { c = b0; }
        else if ((b0 & 0xE0) == 0xC0) { c = b0 & 0x1F; extra = 1; }
        else if ((b0 & 0xF0) == 0xE0) { c = b0 & 0x0F; extra = 2; }
        else if ((b0 & 0xF8) == 0xF0) { c = b0 & 0x07; extra = 3; }
        else { out += L'\uFFFD'; ++i; continue; }
        bool ok = true;
        for (int k = 1; k <= extra; ++k) {
            if (i + static_cast<std::size_t>(k) >= n) { ok = false; break; }
            const auto b = static_cast<unsigned char>(text[i + static_cast<std::size_t>(k)]);
            if ((b & 0xC0) != 0x80) { ok = false; break; }
            c = (c << 6) | (b & 0x3F);
        }
        if (!ok) { out += L'\uFFFD'; ++i; continue; }
        out += static_cast<wchar_t>(c);
        i += static_cast<std::size_t>(extra) + 1;
    }
    return out;
}

namespace {
// ASCII letters directly: names are mostly ASCII, and towupper is a library call per character.
wchar_t upper(wchar_t c) {
    if (c < 0x80) return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - (L'a' - L'A')) : c;
    return static_cast<wchar_t>(std::towupper(static_cast<wint_t>(c)));
}
}  // namespace

std::wstring acutUpperName(std::wstring_view name) {
    std::wstring out(name);
    for (auto& c : out) c = upper(c);
    return out;
}

bool acutNamesEqual(std::wstring_view a, std::wstring_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (a[i] != b[i] && upper(a[i]) != upper(b[i])) return false;
    return true;
}
