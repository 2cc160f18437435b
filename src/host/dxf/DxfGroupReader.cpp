#include "host/dxf/DxfGroupReader.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <cstring>

namespace {
std::string_view trim(std::string_view s) {
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t')) s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t')) s.remove_suffix(1);
    return s;
}

// The value as it appears in a message: shortened, with unprintable bytes shown as '?'.
std::string quoted(std::string_view s) {
    std::string out = "\"";
    for (std::size_t i = 0; i < s.size() && i < 40; ++i) {
        const auto c = static_cast<unsigned char>(s[i]);
        out += c >= 0x20 && c < 0x7F ? static_cast<char>(c) : '?';
    }
    if (s.size() > 40) out += "...";
    return out + "\"";
}

template <class T>
bool parseNumber(std::string_view text, T& value) {
    text = trim(text);
    if (!text.empty() && text.front() == '+') text.remove_prefix(1);
    if (text.empty()) return false;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    return ec == std::errc() && end == text.data() + text.size();
}

bool parseHex(std::string_view text, std::int64_t& value) {
    text = trim(text);
    if (text.empty() || text.size() > 16) return false;
    std::uint64_t v = 0;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), v, 16);
    value = static_cast<std::int64_t>(v);
    return ec == std::errc() && end == text.data() + text.size();
}

bool isHexData(std::string_view text) {
    if (text.size() % 2 != 0) return false;
    for (const char c : text)
        if (!std::isxdigit(static_cast<unsigned char>(c))) return false;
    return true;
}
}  // namespace

DxfGroupReader::DxfGroupReader(std::string_view data) : m_data(data) {
    if (m_data.substr(0, 3) == "\xEF\xBB\xBF") m_pos = 3;  // a UTF-8 byte order mark
}

bool DxfGroupReader::readLine(std::string_view& line) {
    if (m_pos >= m_data.size()) return false;
    const char* begin = m_data.data() + m_pos;
    const auto* newline = static_cast<const char*>(std::memchr(begin, '\n', m_data.size() - m_pos));
    const std::size_t length = newline ? static_cast<std::size_t>(newline - begin) : m_data.size() - m_pos;
    m_pos += length + (newline ? 1 : 0);
    line = std::string_view(begin, length);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    ++m_line;
    return true;
}

bool DxfGroupReader::next(DxfGroup& group, DxfReadError& error) {
    error = DxfReadError();
    std::string_view codeLine;
    if (!readLine(codeLine)) return false;
    group.line = m_line;
    if (!parseNumber(codeLine, group.code)) {
        error = {m_line, "expected a group code, found " + quoted(codeLine)};
        return false;
    }
    if (!readLine(group.value)) {
        error = {m_line, "group code " + std::to_string(group.code) + " has no value: the file ends here"};
        return false;
    }
    return parseValue(group, error);
}

bool DxfGroupReader::nextObject(DxfObject& object, DxfReadError& error) {
    object.clear();
    error = DxfReadError();
    if (m_hasNext) object.add(m_next);
    m_hasNext = false;
    while (next(m_next, error)) {
        if (m_next.code == 0 && !object.empty()) {
            m_hasNext = true;
            return true;
        }
        object.add(m_next);
    }
    return error.message.empty() && !object.empty();
}

bool DxfGroupReader::parseValue(DxfGroup& group, DxfReadError& error) const {
    const auto fail = [&](const std::string& problem) {
        error = {m_line, quoted(group.value) + " " + problem + " (group code " + std::to_string(group.code) + ")"};
        return false;
    };
    switch (dxfValueType(group.code)) {
        case DxfValueType::kUnknown:
            error = {group.line, "unknown group code " + std::to_string(group.code)};
            return false;
        case DxfValueType::kReal:
            if (!parseNumber(group.value, group.real) || !std::isfinite(group.real)) return fail("is not a number");
            return true;
        case DxfValueType::kInteger: {
            std::int64_t min = 0;
            std::int64_t max = 0;
            dxfIntegerRange(group.code, min, max);
            if (!parseNumber(group.value, group.integer)) return fail("is not an integer");
            if (group.integer < min || group.integer > max) return fail("is out of range");
            return true;
        }
        case DxfValueType::kHandle:
            // Pointers to other objects are not followed here; some writers leave them empty or
            // put a name in them (a dimension style's text style). An object's own handle must be
            // one.
            if (group.code != 5 && group.code != 105) {
                if (!parseHex(group.value, group.integer)) group.integer = 0;
                return true;
            }
            return parseHex(group.value, group.integer) || fail("is not a handle");
        case DxfValueType::kBinary:
            group.value = trim(group.value);
            return isHexData(group.value) || fail("is not hexadecimal data");
        case DxfValueType::kString:
            if (group.value.find('\0') != std::string_view::npos) {
                error = {m_line, "binary bytes in a text value (group code " + std::to_string(group.code) + ")"};
                return false;
            }
            if (group.code == 0 || group.code == 9) group.value = trim(group.value);
            return true;
    }
    return true;
}
