#include "framework/data/CNumberText.h"

#include <charconv>
#include <system_error>

namespace XimoGis::Data {

namespace {

// Narrows the trimmed text to ASCII; anything else cannot be a number.
bool ToAsciiNumber(std::wstring_view text, std::string& out) {
    const auto first = text.find_first_not_of(L" \t");
    if (first == std::wstring_view::npos) return false;
    const auto last = text.find_last_not_of(L" \t");
    text = text.substr(first, last - first + 1);
    if (text.front() == L'+') {  // from_chars refuses an explicit plus sign
        text.remove_prefix(1);
        if (text.empty() || text.front() == L'-') return false;
    }
    out.clear();
    out.reserve(text.size());
    for (wchar_t c : text) {
        if (c <= 0 || c > 0x7F) return false;
        out.push_back(static_cast<char>(c));
    }
    return true;
}

// The whole text must be one number of type T.
template <typename T>
bool ParseWhole(std::wstring_view text, T& value) {
    std::string ascii;
    if (!ToAsciiNumber(text, ascii)) return false;
    T parsed{};
    const auto result = std::from_chars(ascii.data(), ascii.data() + ascii.size(), parsed);
    if (result.ec != std::errc() || result.ptr != ascii.data() + ascii.size()) return false;
    value = parsed;
    return true;
}

}  // namespace

std::wstring CNumberText::FormatDouble(double value) {
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::wstring(buffer, result.ptr);
}

bool CNumberText::ParseDouble(std::wstring_view text, double& value) {
    return ParseWhole(text, value);
}

bool CNumberText::ParseLong(std::wstring_view text, long& value) {
    return ParseWhole(text, value);
}

bool CNumberText::ParseInt(std::wstring_view text, int& value) {
    return ParseWhole(text, value);
}

}  // namespace XimoGis::Data
