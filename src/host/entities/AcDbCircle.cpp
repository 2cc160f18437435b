#include "host/entities/AcDbCircle.h"

Acad::ErrorStatus AcDbCircle::setRadius(double r) {
    if (!(r > 0.0)) return Acad::eInvalidInput;
    m_radius = r;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::getGeomExtents(AcDbExtents& extents) const {
    const AcGeVector3d r(m_radius, m_radius, m_radius);
    extents = AcDbExtents(m_center - r, m_center + r);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::transformBy(const AcGeMatrix3d& m) {
    if (!m.isUniScaledOrtho(AcGeTol(1e-9, 1e-9))) return Acad::eNotApplicable;
    m_center.transformBy(m);
    m_radius *= m.scale();
    AcGeVector3d n = m * m_normal;
    if (m.isMirroring()) n = -n;  // keeps the circle's sense in the drawing plane
    m_normal = n.normal();
    return Acad::eOk;
}
