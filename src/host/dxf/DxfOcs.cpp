#include "host/dxf/DxfOcs.h"

#include <cmath>

DxfOcs::DxfOcs(const AcGeVector3d& normal) : m_z(normal.isZeroLength() ? AcGeVector3d::kZAxis : normal.normal()) {
    constexpr double kLimit = 1.0 / 64.0;
    const AcGeVector3d reference =
        std::fabs(m_z.x) < kLimit && std::fabs(m_z.y) < kLimit ? AcGeVector3d::kYAxis : AcGeVector3d::kZAxis;
    m_x = reference.crossProduct(m_z).normal();
    m_y = m_z.crossProduct(m_x).normal();
    m_world = m_z.isEqualTo(AcGeVector3d::kZAxis);
}

AcGePoint3d DxfOcs::fromWorld(const AcGePoint3d& p) const {
    if (m_world) return p;
    const AcGeVector3d v = p.asVector();
    return {v.dotProduct(m_x), v.dotProduct(m_y), v.dotProduct(m_z)};
}

AcGePoint3d DxfOcs::toWorld(const AcGePoint3d& p) const {
    if (m_world) return p;
    return AcGePoint3d::kOrigin + m_x * p.x + m_y * p.y + m_z * p.z;
}
