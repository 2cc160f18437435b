#include "host/dxf/DxfWriter.h"

#include <charconv>
#include <cmath>

#include "host/dxf/DxfTextCodec.h"

void DxfWriter::dxfReal(int gc, double value) const {
    if (!std::isfinite(value)) {
        ++m_nonFinite;
        value = 0.0;
    }
    char buffer[40];
    char* end = std::to_chars(buffer, buffer + sizeof(buffer) - 3, value).ptr;
    // A bare integer gets ".0": some readers take a value without a point for an integer.
    const std::string_view digits(buffer, static_cast<std::size_t>(end - buffer));
    if (digits.find_first_of(".e") == std::string_view::npos) {
        *end++ = '.';
        *end++ = '0';
    }
    *end = '\0';
    dxfString(gc, buffer);
}

void DxfWriter::text(int gc, std::wstring_view value) const {
    m_buffer.clear();
    DxfTextCodec::encode(value, m_buffer);
    dxfString(gc, m_buffer);
}

void DxfWriter::point(int gc, const AcGePoint3d& p) const {
    dxfReal(gc, p.x);
    dxfReal(gc + 10, p.y);
    dxfReal(gc + 20, p.z);
}

void DxfWriter::angle(int gc, double radians) const { dxfReal(gc, radians * 180.0 / M_PI); }
