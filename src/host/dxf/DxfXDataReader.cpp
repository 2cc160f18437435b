#include "host/dxf/DxfXDataReader.h"

namespace {
std::vector<unsigned char> bytesFromHex(std::string_view hex) {
    const auto digit = [](char c) {
        return c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10;
    };
    std::vector<unsigned char> bytes(hex.size() / 2);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<unsigned char>(digit(hex[2 * i]) * 16 + digit(hex[2 * i + 1]));
    return bytes;
}
}  // namespace

void dxfReadXData(const DxfObject& object, const DxfTextCodec& codec, AcDbXDataList& out) {
    const auto& groups = object.groups();
    AcDbXDataApp* app = nullptr;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        const DxfGroup& g = groups[i];
        if (g.code < 1000) continue;
        if (g.code == 1001) {
            out.push_back({codec.decode(g.value), {}});
            app = &out.back();
            continue;
        }
        if (!app || !acdbIsXDataValueCode(g.code)) continue;
        const auto code = static_cast<short>(g.code);
        if (g.code >= 1010 && g.code <= 1013) {
            AcGePoint3d p(g.real, 0.0, 0.0);
            if (i + 1 < groups.size() && groups[i + 1].code == g.code + 10) p.y = groups[++i].real;
            if (i + 1 < groups.size() && groups[i + 1].code == g.code + 20) p.z = groups[++i].real;
            app->values.push_back(AcDbXDataValue::point(p, code));
        } else if (g.code >= 1040 && g.code <= 1042) {
            app->values.push_back(AcDbXDataValue::real(g.real, code));
        } else if (g.code == 1070) {
            app->values.push_back(AcDbXDataValue::int16(static_cast<Adesk::Int16>(g.integer)));
        } else if (g.code == 1071) {
            app->values.push_back(AcDbXDataValue::int32(static_cast<Adesk::Int32>(g.integer)));
        } else if (g.code == 1004) {
            app->values.push_back({code, bytesFromHex(g.value)});
        } else {
            app->values.push_back({code, codec.decode(g.value)});
        }
    }
}
