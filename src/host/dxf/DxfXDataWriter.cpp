#include "host/dxf/DxfXDataWriter.h"

#include <type_traits>

namespace {
std::string hexBytes(const std::vector<unsigned char>& bytes) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string out;
    out.reserve(bytes.size() * 2);
    for (const unsigned char b : bytes) {
        out += kHex[b >> 4];
        out += kHex[b & 0xF];
    }
    return out;
}
}  // namespace

void dxfWriteXData(const DxfWriter& out, const AcDbXDataList& xdata) {
    for (const AcDbXDataApp& app : xdata) {
        out.text(1001, app.application);
        for (const AcDbXDataValue& v : app.values) {
            std::visit(
                [&](const auto& value) {
                    using T = std::decay_t<decltype(value)>;
                    if constexpr (std::is_same_v<T, std::wstring>) out.text(v.code, value);
                    else if constexpr (std::is_same_v<T, double>) out.dxfReal(v.code, value);
                    else if constexpr (std::is_integral_v<T>) out.dxfInt(v.code, value);
                    else if constexpr (std::is_same_v<T, AcGePoint3d>) out.point(v.code, value);
                    else out.dxfString(v.code, hexBytes(value));
                },
                v.value);
        }
    }
}
