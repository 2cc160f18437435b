#pragma once
// One group of a DXF file: a group code and its value, with the line the code stands on.
// Values stay in the file's bytes; numbers are parsed once, when the group is read.

#include <cstdint>
#include <string_view>

enum class DxfValueType { kString, kReal, kInteger, kHandle, kBinary, kUnknown };

// The type of the values a group code carries, with the range of integer codes.
DxfValueType dxfValueType(int code);
// The range of an integer code's values.
void dxfIntegerRange(int code, std::int64_t& min, std::int64_t& max);

struct DxfGroup {
    int code = 0;
    std::uint32_t line = 0;
    std::string_view value;
    double real = 0.0;          // real codes
    std::int64_t integer = 0;   // integer and handle codes
};
