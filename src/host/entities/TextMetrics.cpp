#include "host/entities/TextMetrics.h"

#include <cwctype>

double acdbCharAdvance(wchar_t c) {
    switch (c) {
        case L'i': case L'l': case L'j': case L'.': case L',': case L':': case L';': case L'!': case L'|':
        case L'\'': case L'I':
            return 0.3;
        case L' ': case L'f': case L't': case L'r': case L'(': case L')': case L'[': case L']': case L'-':
            return 0.42;
        case L'm': case L'w': case L'M': case L'W': case L'@': case L'%':
            return 0.9;
        default: break;
    }
    if (std::iswdigit(static_cast<wint_t>(c))) return 0.6;
    if (std::iswupper(static_cast<wint_t>(c))) return 0.72;
    return 0.58;
}

double acdbTextWidth(std::wstring_view text, double height, double widthFactor) {
    double units = 0.0;
    for (wchar_t c : text) units += acdbCharAdvance(c);
    return units * height * widthFactor;
}
