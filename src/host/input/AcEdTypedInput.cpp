#include "host/input/AcEdTypedInput.h"

#include <cerrno>
#include <cmath>
#include <cwchar>
#include <string>

std::wstring_view AcEdTypedInput::trim(std::wstring_view text) {
    const auto first = text.find_first_not_of(L" \t\r\n");
    if (first == std::wstring_view::npos) return {};
    const auto last = text.find_last_not_of(L" \t\r\n");
    return text.substr(first, last - first + 1);
}

bool AcEdTypedInput::parseReal(std::wstring_view text, double& value) {
    text = trim(text);
    // Only plain decimal notation: wcstod alone would also take "inf", "nan" and hexadecimal.
    if (text.empty() || text.find_first_not_of(L"0123456789+-.eE") != std::wstring_view::npos) return false;
    const std::wstring copy(text);
    wchar_t* end = nullptr;
    const double parsed = std::wcstod(copy.c_str(), &end);
    if (end != copy.c_str() + copy.size() || !std::isfinite(parsed)) return false;
    value = parsed;
    return true;
}

bool AcEdTypedInput::parseInteger(std::wstring_view text, long& value) {
    text = trim(text);
    if (text.empty() || text.find_first_not_of(L"0123456789+-") != std::wstring_view::npos) return false;
    const std::wstring copy(text);
    wchar_t* end = nullptr;
    errno = 0;
    const long parsed = std::wcstol(copy.c_str(), &end, 10);
    if (end != copy.c_str() + copy.size() || errno == ERANGE) return false;
    value = parsed;
    return true;
}

bool AcEdTypedInput::parsePoint(std::wstring_view text, AcGePoint3d& point) {
    double coordinates[3] = {0.0, 0.0, 0.0};
    int count = 0;
    for (std::size_t start = 0;; ++count) {
        const std::size_t comma = text.find(L',', start);
        if (count == 3 || !parseReal(text.substr(start, comma - start), coordinates[count])) return false;
        if (comma == std::wstring_view::npos) break;
        start = comma + 1;
    }
    if (count < 1) return false;
    point.set(coordinates[0], coordinates[1], coordinates[2]);
    return true;
}
