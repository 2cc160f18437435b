#include "framework/data/CManholeSketch.h"

#include "framework/cad/CXimoCDraw.h"
#include "host/entities/AcDbText.h"

#include <cmath>
#include <numbers>

namespace XimoGis::Data {

CManholeSketch::CManholeSketch(const AcGePoint3d& basePoint, double factor, AcDbObjectIdArray& ids)
    : m_base(basePoint), m_factor(factor), m_ids(ids) {}

AcGePoint3d CManholeSketch::At(double u, double v) const {
    return AcGePoint3d(m_base.x + u * m_factor, m_base.y + v * m_factor, m_base.z);
}

void CManholeSketch::Keep(CXimoCEntityPtr& entity, int colour, const wchar_t* linetype) {
    if (!entity) {
        m_failed = true;
        return;
    }
    entity.setColorIndex(static_cast<Adesk::UInt16>(colour));
    if (linetype) entity.setLinetype(linetype);
    m_ids.append(entity.objectId());
}

void CManholeSketch::Line(double u1, double v1, double u2, double v2, int colour, const wchar_t* linetype) {
    CXimoCEntityPtr line = CXimoCDraw::line(At(u1, v1), At(u2, v2));
    Keep(line, colour, linetype);
}

void CManholeSketch::Polyline(const std::vector<AcGePoint2d>& points, bool closed, int colour,
                              const wchar_t* linetype) {
    AcArray<AcGePoint3d> vertices;
    for (const AcGePoint2d& p : points) vertices.append(At(p.x, p.y));
    CXimoCEntityPtr polyline = CXimoCDraw::polylineLW(vertices, closed);
    Keep(polyline, colour, linetype);
}

void CManholeSketch::Rectangle(double u1, double v1, double u2, double v2, int colour) {
    Polyline({{u1, v1}, {u2, v1}, {u2, v2}, {u1, v2}}, true, colour);
}

void CManholeSketch::Circle(double u, double v, double radius, int colour, const wchar_t* linetype) {
    CXimoCEntityPtr circle = CXimoCDraw::circle(At(u, v), radius * m_factor);
    Keep(circle, colour, linetype);
}

void CManholeSketch::Ellipse(double u, double v, double radiusU, double radiusV, int colour, const wchar_t* linetype) {
    // Less than a hundredth of the other axis cannot be told from a line at any scale.
    if (radiusU < radiusV * 0.01) return Line(u, v - radiusV, u, v + radiusV, colour, linetype);
    constexpr int kSegments = 36;
    std::vector<AcGePoint2d> points;
    for (int i = 0; i < kSegments; ++i) {
        const double angle = 2.0 * std::numbers::pi * i / kSegments;
        points.emplace_back(u + radiusU * std::cos(angle), v + radiusV * std::sin(angle));
    }
    Polyline(points, true, colour, linetype);
}

void CManholeSketch::Text(double u, double v, const std::wstring& text, double height, int colour,
                          const std::wstring& style, enmAlign align) {
    CXimoCEntityPtr entity = CXimoCDraw::text(At(u, v), text, height, 0.0, style);
    if (auto* label = dynamic_cast<AcDbText*>(entity.get())) {
        static const AcDb::TextHorzMode modes[] = {AcDb::kTextLeft, AcDb::kTextCenter, AcDb::kTextRight};
        label->setHorizontalMode(modes[align]);
        label->setVerticalMode(AcDb::kTextVertMid);
        label->setAlignmentPoint(At(u, v));
    }
    Keep(entity, colour, nullptr);
}

}  // namespace XimoGis::Data
