#pragma once
// What is wrong with a DXF file, and on which line.

#include <cstdint>
#include <string>

struct DxfReadError {
    std::uint32_t line = 0;  // 0 when no line is to blame
    std::string message;
};
