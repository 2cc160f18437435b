#include "host/dxf/DxfTextCodec.h"

#include <charconv>

#include "host/base/AcString.h"
#include "host/dxf/DxfCodePages.h"

namespace {
constexpr char kHex[] = "0123456789ABCDEF";

void appendEscape(unsigned unit, std::string& out) {
    out += "\\U+";
    for (int shift = 12; shift >= 0; shift -= 4) out += kHex[(unit >> shift) & 0xF];
}

bool isValidUtf8(std::string_view s) {
    std::size_t i = 0;
    while (i < s.size()) {
        const auto b = static_cast<unsigned char>(s[i]);
        std::size_t extra = 0;
        if (b < 0x80) extra = 0;
        else if (b >= 0xC2 && b <= 0xDF) extra = 1;
        else if ((b & 0xF0) == 0xE0) extra = 2;
        else if (b >= 0xF0 && b <= 0xF4) extra = 3;
        else return false;
        if (i + extra >= s.size() && extra > 0) return false;
        for (std::size_t k = 1; k <= extra; ++k)
            if ((static_cast<unsigned char>(s[i + k]) & 0xC0) != 0x80) return false;
        i += extra + 1;
    }
    return true;
}

int hexDigit(wchar_t c) {
    if (c >= L'0' && c <= L'9') return c - L'0';
    if (c >= L'A' && c <= L'F') return c - L'A' + 10;
    if (c >= L'a' && c <= L'f') return c - L'a' + 10;
    return -1;
}

// The 16-bit unit of an escape starting at text[i] ("\U+XXXX"), or -1.
int escapeAt(const std::wstring& text, std::size_t i) {
    if (i + 7 > text.size() || text[i] != L'\\' || text[i + 1] != L'U' || text[i + 2] != L'+') return -1;
    int unit = 0;
    for (std::size_t k = 3; k < 7; ++k) {
        const int d = hexDigit(text[i + k]);
        if (d < 0) return -1;
        unit = unit * 16 + d;
    }
    return unit;
}
}  // namespace

DxfTextCodec::DxfTextCodec(int codePage) : m_codePage(codePage), m_table(dxfCodePageTable(codePage)) {
    if (!m_table) {
        m_codePage = 1252;
        m_table = dxfCodePageTable(1252);
    }
}

int DxfTextCodec::codePageFromName(std::string_view name) {
    const std::size_t digits = name.find_first_of("0123456789");
    if (digits == std::string_view::npos) return 0;
    int page = 0;
    std::from_chars(name.data() + digits, name.data() + name.size(), page);
    return page;
}

std::string DxfTextCodec::encode(std::wstring_view text) {
    std::string out;
    encode(text, out);
    return out;
}

void DxfTextCodec::encode(std::wstring_view text, std::string& out) {
    out.reserve(out.size() + text.size());
    for (const wchar_t wc : text) {
        const auto c = static_cast<char32_t>(wc);
        if (c >= 0x20 && c < 0x7F) {
            out += static_cast<char>(c);
        } else if (c > 0xFFFF && c <= 0x10FFFF) {
            // Escapes hold 16 bits: characters beyond take a surrogate pair.
            appendEscape(0xD800 + ((c - 0x10000) >> 10), out);
            appendEscape(0xDC00 + ((c - 0x10000) & 0x3FF), out);
        } else {
            appendEscape(c > 0x10FFFF ? 0xFFFD : static_cast<unsigned>(c), out);
        }
    }
}

std::wstring DxfTextCodec::decode(std::string_view bytes) const {
    std::wstring out;
    bool ascii = true;
    bool escapes = false;
    for (const char ch : bytes) {
        if (static_cast<unsigned char>(ch) >= 0x80) ascii = false;
        if (ch == '\\') escapes = true;
    }
    if (ascii) out.assign(bytes.begin(), bytes.end());
    else if (isValidUtf8(bytes)) out = acutUtf8ToWchar(bytes);
    else decodeSingleByte(bytes, out);
    if (escapes) resolveEscapes(out);
    return out;
}

void DxfTextCodec::decodeSingleByte(std::string_view bytes, std::wstring& out) const {
    out.reserve(bytes.size());
    for (const char ch : bytes) {
        const auto b = static_cast<unsigned char>(ch);
        out += b < 0x80 ? static_cast<wchar_t>(b) : static_cast<wchar_t>(m_table[b - 0x80]);
    }
}

void DxfTextCodec::resolveEscapes(std::wstring& text) {
    std::wstring out;
    out.reserve(text.size());
    std::size_t i = 0;
    while (i < text.size()) {
        const int unit = escapeAt(text, i);
        if (unit < 0) {
            out += text[i++];
            continue;
        }
        i += 7;
        if (unit >= 0xD800 && unit <= 0xDBFF) {
            const int low = escapeAt(text, i);
            if (low >= 0xDC00 && low <= 0xDFFF) {
                out += static_cast<wchar_t>(0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00));
                i += 7;
                continue;
            }
        }
        out += static_cast<wchar_t>(unit >= 0xD800 && unit <= 0xDFFF ? 0xFFFD : unit);
    }
    text.swap(out);
}
