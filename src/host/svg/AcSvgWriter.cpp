#include "host/svg/AcSvgWriter.h"

#include <charconv>
#include <cmath>

#include "host/base/AcString.h"

AcSvgWriter::AcSvgWriter() : m_out("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n") {}

void AcSvgWriter::closeStartTag() {
    if (!m_inStartTag) return;
    m_out += '>';
    m_inStartTag = false;
}

AcSvgWriter& AcSvgWriter::start(const char* name) {
    closeStartTag();
    if (!m_open.empty()) m_out += '\n';
    m_out += '<';
    m_out += name;
    m_open.emplace_back(name);
    m_inStartTag = true;
    return *this;
}

AcSvgWriter& AcSvgWriter::attribute(const char* name, std::string_view value) {
    if (!m_inStartTag) return *this;  // attributes belong to a start tag only
    m_out += ' ';
    m_out += name;
    m_out += "=\"";
    for (char c : value) {
        switch (c) {
            case '&': m_out += "&amp;"; break;
            case '<': m_out += "&lt;"; break;
            case '"': m_out += "&quot;"; break;
            default: m_out += c; break;
        }
    }
    m_out += '"';
    return *this;
}

AcSvgWriter& AcSvgWriter::attribute(const char* name, double value) { return attribute(name, acsvgNumber(value)); }

AcSvgWriter& AcSvgWriter::text(std::wstring_view content) {
    closeStartTag();
    m_out += acsvgEscape(content);
    return *this;
}

AcSvgWriter& AcSvgWriter::end() {
    if (m_open.empty()) return *this;
    if (m_inStartTag) {
        m_out += "/>";
        m_inStartTag = false;
    } else {
        if (m_out.back() == '>') m_out += '\n';
        m_out += "</" + m_open.back() + '>';
    }
    m_open.pop_back();
    return *this;
}

std::string AcSvgWriter::finish() {
    while (!m_open.empty()) end();
    m_out += '\n';
    return std::move(m_out);
}

std::string acsvgNumber(double value) {
    if (!std::isfinite(value)) return "0";
    char text[64];
    const auto result = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, 3);
    std::string s(text, result.ptr);
    s.erase(s.find_last_not_of('0') + 1);
    if (s.back() == '.') s.pop_back();
    if (s == "-0") s = "0";
    return s;
}

std::string acsvgEscape(std::wstring_view text) {
    std::wstring kept;
    kept.reserve(text.size());
    for (wchar_t c : text) {
        const auto u = static_cast<std::uint32_t>(c);
        const bool allowed = u == 0x9 || u == 0xA || u == 0xD || (u >= 0x20 && u <= 0xD7FF) ||
                             (u >= 0xE000 && u <= 0xFFFD) || (u >= 0x10000 && u <= 0x10FFFF);
        if (allowed) kept += c;
    }
    std::string out;
    for (char c : acutWcharToUtf8(kept)) {
        switch (c) {
            case '&': out += "&amp;"; break;
            case '<': out += "&lt;"; break;
            case '>': out += "&gt;"; break;
            case '"': out += "&quot;"; break;
            default: out += c; break;
        }
    }
    return out;
}
