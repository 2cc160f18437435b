#include "framework/workspace/CGpkgGeometry.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cmath>

namespace XimoGis::Workspace {

namespace {

constexpr std::uint8_t kLittleEndianFlag = 0x01;
constexpr std::uint8_t kEnvelopeXY = 1 << 1;  // envelope contents indicator 1
constexpr std::uint8_t kEmptyFlag = 0x10;
constexpr std::uint8_t kExtendedFlag = 0x20;

class CWriter {
public:
    void Byte(std::uint8_t value) { m_bytes.push_back(static_cast<char>(value)); }
    void UInt32(std::uint32_t value) {
        for (int i = 0; i < 4; ++i) Byte(static_cast<std::uint8_t>(value >> (8 * i)));
    }
    void Double(double value) {
        const auto bits = std::bit_cast<std::uint64_t>(value);
        for (int i = 0; i < 8; ++i) Byte(static_cast<std::uint8_t>(bits >> (8 * i)));
    }
    std::string Take() { return std::move(m_bytes); }

private:
    std::string m_bytes;
};

class CReader {
public:
    explicit CReader(const std::string& bytes) : m_bytes(bytes) {}

    bool Byte(std::uint8_t& value) {
        if (m_at + 1 > m_bytes.size()) return false;
        value = static_cast<std::uint8_t>(m_bytes[m_at++]);
        return true;
    }
    bool UInt32(std::uint32_t& value, bool littleEndian) {
        if (m_at + 4 > m_bytes.size()) return false;
        value = 0;
        for (int i = 0; i < 4; ++i) {
            const auto byte = static_cast<std::uint8_t>(m_bytes[m_at + (littleEndian ? i : 3 - i)]);
            value |= static_cast<std::uint32_t>(byte) << (8 * i);
        }
        m_at += 4;
        return true;
    }
    bool Double(double& value, bool littleEndian) {
        if (m_at + 8 > m_bytes.size()) return false;
        std::uint64_t bits = 0;
        for (int i = 0; i < 8; ++i) {
            const auto byte = static_cast<std::uint8_t>(m_bytes[m_at + (littleEndian ? i : 7 - i)]);
            bits |= static_cast<std::uint64_t>(byte) << (8 * i);
        }
        m_at += 8;
        value = std::bit_cast<double>(bits);
        return true;
    }
    bool Skip(std::size_t count) {
        if (m_at + count > m_bytes.size()) return false;
        m_at += count;
        return true;
    }
    std::size_t Left() const { return m_bytes.size() - m_at; }

private:
    const std::string& m_bytes;
    std::size_t m_at = 0;
};

void WriteHeader(CWriter& out, int srsId, bool withEnvelope) {
    out.Byte('G');
    out.Byte('P');
    out.Byte(0);
    out.Byte(kLittleEndianFlag | (withEnvelope ? kEnvelopeXY : 0));
    out.UInt32(static_cast<std::uint32_t>(srsId));
}

// Doubles in the envelope for each envelope contents indicator (5 to 7 are reserved).
int EnvelopeDoubles(int indicator) {
    static const int counts[] = {0, 4, 6, 6, 8};
    return indicator >= 0 && indicator <= 4 ? counts[indicator] : -1;
}

}  // namespace

std::string CGpkgGeometry::EncodePoint(const AcGePoint3d& point, int srsId) {
    CWriter out;
    WriteHeader(out, srsId, false);
    out.Byte(1);  // WKB little-endian
    out.UInt32(gtPoint);
    out.Double(point.x);
    out.Double(point.y);
    return out.Take();
}

std::string CGpkgGeometry::EncodeLineString(const std::vector<AcGePoint3d>& points, int srsId) {
    if (points.size() < 2) return {};
    const auto [minX, maxX] = std::minmax_element(points.begin(), points.end(),
                                                  [](const auto& a, const auto& b) { return a.x < b.x; });
    const auto [minY, maxY] = std::minmax_element(points.begin(), points.end(),
                                                  [](const auto& a, const auto& b) { return a.y < b.y; });
    CWriter out;
    WriteHeader(out, srsId, true);
    out.Double(minX->x);
    out.Double(maxX->x);
    out.Double(minY->y);
    out.Double(maxY->y);
    out.Byte(1);
    out.UInt32(gtLineString);
    out.UInt32(static_cast<std::uint32_t>(points.size()));
    for (const AcGePoint3d& p : points) {
        out.Double(p.x);
        out.Double(p.y);
    }
    return out.Take();
}

bool CGpkgGeometry::Decode(const std::string& blob, enmGeometryType& type, std::vector<AcGePoint3d>& points,
                           int& srsId, std::string& error) {
    CReader in(blob);
    std::uint8_t g = 0, p = 0, version = 0, flags = 0;
    if (!in.Byte(g) || !in.Byte(p) || g != 'G' || p != 'P') {
        error = "not a GeoPackage geometry (no 'GP' header)";
        return false;
    }
    in.Byte(version);
    if (!in.Byte(flags)) {
        error = "the geometry header is cut short";
        return false;
    }
    if (flags & kExtendedFlag) {
        error = "an extended GeoPackage geometry is not supported";
        return false;
    }
    if (flags & kEmptyFlag) {
        error = "the geometry is empty";
        return false;
    }
    const bool headerLittle = flags & kLittleEndianFlag;
    std::uint32_t srs = 0;
    const int envelopeDoubles = EnvelopeDoubles((flags >> 1) & 0x07);
    if (!in.UInt32(srs, headerLittle) || envelopeDoubles < 0 || !in.Skip(8u * envelopeDoubles)) {
        error = "the geometry header is damaged";
        return false;
    }
    std::uint8_t order = 0;
    std::uint32_t code = 0;
    if (!in.Byte(order) || order > 1 || !in.UInt32(code, order == 1)) {
        error = "the well-known binary is damaged";
        return false;
    }
    // ISO codes: thousands tell Z (1), M (2) or ZM (3); EWKB-style flags are not written by GeoPackages.
    const std::uint32_t dimensions = code / 1000;
    const std::uint32_t base = code % 1000;
    if (dimensions > 3 || (base != gtPoint && base != gtLineString)) {
        error = "geometry type " + std::to_string(code) + " is neither a point nor a line string";
        return false;
    }
    const bool hasZ = dimensions == 1 || dimensions == 3;
    const bool hasM = dimensions >= 2;
    std::uint32_t count = 1;
    if (base == gtLineString && !in.UInt32(count, order == 1)) {
        error = "the well-known binary is damaged";
        return false;
    }
    const std::size_t perPoint = 8u * (2 + hasZ + hasM);
    if (count == 0 || (base == gtLineString && count < 2) || in.Left() < perPoint * count) {
        error = "the geometry has too few coordinates";
        return false;
    }
    std::vector<AcGePoint3d> read(count);
    for (AcGePoint3d& point : read) {
        double m = 0.0;
        in.Double(point.x, order == 1);
        in.Double(point.y, order == 1);
        if (hasZ) in.Double(point.z, order == 1);
        if (hasM) in.Double(m, order == 1);
    }
    if (base == gtPoint && std::isnan(read[0].x)) {
        error = "the geometry is empty";
        return false;
    }
    type = static_cast<enmGeometryType>(base);
    points = std::move(read);
    srsId = static_cast<int>(srs);
    return true;
}

}  // namespace XimoGis::Workspace
