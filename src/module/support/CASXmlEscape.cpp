#include "module/support/CASXmlEscape.h"

#include <cwctype>

namespace XimoGis::AssemblySchemes {

bool CASXmlEscape::StartsEntityReference(const std::wstring& text, std::size_t position) {
    if (position >= text.size() || text[position] != L'&') return false;
    std::size_t i = position + 1;
    bool digitsOnly = false;
    bool hex = false;
    if (i < text.size() && text[i] == L'#') {
        digitsOnly = true;
        ++i;
        if (i < text.size() && (text[i] == L'x' || text[i] == L'X')) {
            hex = true;
            ++i;
        }
    }
    const std::size_t first = i;
    for (; i < text.size() && text[i] != L';'; ++i) {
        const wchar_t c = text[i];
        const bool ok = hex ? std::iswxdigit(c) != 0
                            : digitsOnly ? std::iswdigit(c) != 0
                                         : std::iswalpha(c) != 0 || (i > first && std::iswdigit(c) != 0);
        if (!ok) return false;
    }
    return i < text.size() && i > first;
}

std::wstring CASXmlEscape::EncodeAttribute(const std::wstring& text) {
    std::wstring encoded;
    encoded.reserve(text.size());
    for (const wchar_t c : text) {
        switch (c) {
            case L'<': encoded += L"&lt;"; break;
            case L'&': encoded += L"&amp;"; break;
            case L'>': encoded += L"&gt;"; break;
            case L'\'': encoded += L"&apos;"; break;
            case L'"': encoded += L"&quot;"; break;
            case L'\n': encoded += L"&#10;"; break;
            case L'\r': encoded += L"&#13;"; break;
            case L'\t': encoded += L"&#9;"; break;
            default: encoded += c;
        }
    }
    return encoded;
}

std::wstring CASXmlEscape::Escape(const std::wstring& text) {
    std::wstring escaped;
    escaped.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        switch (text[i]) {
            case L'<': escaped += L"&lt;"; break;
            case L'>': escaped += L"&gt;"; break;
            case L'\'': escaped += L"&apos;"; break;
            case L'&': escaped += StartsEntityReference(text, i) ? L"&" : L"&amp;"; break;
            default: escaped += text[i];
        }
    }
    return escaped;
}

}  // namespace XimoGis::AssemblySchemes
