#include "host/dxf/DxfGroup.h"

#include <limits>

DxfValueType dxfValueType(int code) {
    if (code < 0) return DxfValueType::kUnknown;
    if (code <= 4 || (code >= 6 && code <= 9)) return DxfValueType::kString;
    if (code == 5 || code == 105) return DxfValueType::kHandle;
    if (code >= 10 && code <= 59) return DxfValueType::kReal;
    if (code >= 60 && code <= 99) return DxfValueType::kInteger;
    if (code == 100 || code == 101 || code == 102) return DxfValueType::kString;
    if (code >= 110 && code <= 149) return DxfValueType::kReal;
    if (code >= 160 && code <= 179) return DxfValueType::kInteger;
    if (code >= 210 && code <= 239) return DxfValueType::kReal;
    if (code >= 270 && code <= 299) return DxfValueType::kInteger;
    if (code >= 300 && code <= 309) return DxfValueType::kString;
    if (code >= 310 && code <= 319) return DxfValueType::kBinary;
    if (code >= 320 && code <= 369) return DxfValueType::kHandle;
    if (code >= 370 && code <= 389) return DxfValueType::kInteger;
    if (code >= 390 && code <= 399) return DxfValueType::kHandle;
    if (code >= 400 && code <= 409) return DxfValueType::kInteger;
    if (code >= 410 && code <= 419) return DxfValueType::kString;
    if (code >= 420 && code <= 429) return DxfValueType::kInteger;
    if (code >= 430 && code <= 439) return DxfValueType::kString;
    if (code >= 440 && code <= 459) return DxfValueType::kInteger;
    if (code >= 460 && code <= 469) return DxfValueType::kReal;
    if (code >= 470 && code <= 479) return DxfValueType::kString;
    if (code >= 480 && code <= 481) return DxfValueType::kHandle;
    if (code == 999) return DxfValueType::kString;
    if (code >= 1000 && code <= 1003) return DxfValueType::kString;
    if (code == 1004) return DxfValueType::kBinary;
    if (code == 1005) return DxfValueType::kHandle;
    if (code >= 1010 && code <= 1059) return DxfValueType::kReal;
    if (code >= 1060 && code <= 1071) return DxfValueType::kInteger;
    return DxfValueType::kUnknown;
}

void dxfIntegerRange(int code, std::int64_t& min, std::int64_t& max) {
    const bool wide = (code >= 90 && code <= 99) || (code >= 420 && code <= 429) || (code >= 440 && code <= 459);
    if (code == 1070 || code == 1071) {
        // Extended data keeps the exact width: signed 16 and 32 bits.
        min = code == 1070 ? std::numeric_limits<std::int16_t>::min() : std::numeric_limits<std::int32_t>::min();
        max = code == 1070 ? std::numeric_limits<std::int16_t>::max() : std::numeric_limits<std::int32_t>::max();
    } else if (code >= 160 && code <= 169) {
        min = std::numeric_limits<std::int64_t>::min();
        max = std::numeric_limits<std::int64_t>::max();
    } else if (wide) {
        // 32-bit values; some writers put unsigned ones (colours, counts) there.
        min = std::numeric_limits<std::int32_t>::min();
        max = std::numeric_limits<std::uint32_t>::max();
    } else {
        // 16-bit values, signed or unsigned.
        min = std::numeric_limits<std::int16_t>::min();
        max = std::numeric_limits<std::uint16_t>::max();
    }
}
