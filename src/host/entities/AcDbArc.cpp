#include "host/entities/AcDbArc.h"

#include <cmath>

Acad::ErrorStatus AcDbArc::setRadius(double r) {
    if (!(r > 0.0)) return Acad::eInvalidInput;
    m_radius = r;
    return Acad::eOk;
}

double AcDbArc::sweep() const {
    double s = std::fmod(m_end - m_start, 2.0 * M_PI);
    if (s <= 0.0) s += 2.0 * M_PI;
    return s;
}

AcGePoint3d AcDbArc::pointAt(double angle) const {
    return {m_center.x + m_radius * std::cos(angle), m_center.y + m_radius * std::sin(angle), m_center.z};
}

Acad::ErrorStatus AcDbArc::getGeomExtents(AcDbExtents& extents) const {
    extents = AcDbExtents(startPoint(), endPoint());
    // Add the quadrant points the arc passes.
    const double s = sweep();
    for (int q = 0; q < 4; ++q) {
        const double a = q * M_PI / 2.0;
        double d = std::fmod(a - m_start, 2.0 * M_PI);
        if (d < 0.0) d += 2.0 * M_PI;
        if (d <= s) extents.addPoint(pointAt(a));
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::transformBy(const AcGeMatrix3d& m) {
    if (!m.isUniScaledOrtho(AcGeTol(1e-9, 1e-9))) return Acad::eNotApplicable;
    AcGePoint3d start = m * startPoint();
    AcGePoint3d end = m * endPoint();
    if (m.isMirroring()) std::swap(start, end);  // a reflection reverses the arc's sense
    m_center.transformBy(m);
    m_radius *= m.scale();
    m_start = std::atan2(start.y - m_center.y, start.x - m_center.x);
    m_end = std::atan2(end.y - m_center.y, end.x - m_center.x);
    return Acad::eOk;
}
