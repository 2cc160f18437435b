#include "host/geometry/AcGeLine3d.h"

#include <algorithm>
#include <cmath>

double AcGeLinearEnt3d::parameterOf(const AcGePoint3d& p) const {
    const double len2 = m_direction.lengthSqrd();
    if (len2 == 0.0) return 0.0;
    return (p - m_point).dotProduct(m_direction) / len2;
}

AcGePoint3d AcGeLinearEnt3d::closestPointTo(const AcGePoint3d& p, const AcGeTol&) const {
    double t = parameterOf(p);
    if (isBounded()) t = std::clamp(t, 0.0, 1.0);
    return m_point + m_direction * t;
}

bool AcGeLinearEnt3d::isParallelTo(const AcGeLinearEnt3d& other, const AcGeTol& tol) const {
    return m_direction.isParallelTo(other.m_direction, tol);
}

bool AcGeLinearEnt3d::isOn(const AcGePoint3d& p, const AcGeTol& tol) const {
    return closestPointTo(p, tol).distanceTo(p) <= tol.equalPoint();
}

bool AcGeLinearEnt3d::isColinearTo(const AcGeLinearEnt3d& other, const AcGeTol& tol) const {
    if (!isParallelTo(other, tol)) return false;
    const AcGeVector3d d = direction();
    const AcGeVector3d offset = other.m_point - m_point;
    // Distance of the other's point from this carrier.
    return (offset - d * offset.dotProduct(d)).length() <= tol.equalPoint();
}

bool AcGeLinearEnt3d::intersectWith(const AcGeLinearEnt3d& other, AcGePoint3d& point, const AcGeTol& tol) const {
    const AcGeVector3d d1 = m_direction;
    const AcGeVector3d d2 = other.m_direction;
    const AcGeVector3d n = d1.crossProduct(d2);
    const double n2 = n.lengthSqrd();
    if (d1.isZeroLength(tol) || d2.isZeroLength(tol) || isParallelTo(other, tol)) return false;
    const AcGeVector3d w = other.m_point - m_point;
    const double t1 = w.crossProduct(d2).dotProduct(n) / n2;
    const double t2 = w.crossProduct(d1).dotProduct(n) / n2;
    const AcGePoint3d p1 = m_point + d1 * t1;
    const AcGePoint3d p2 = other.m_point + d2 * t2;
    if (p1.distanceTo(p2) > tol.equalPoint() * std::max(1.0, p1.asVector().length())) return false;  // skew
    const double eps = tol.equalPoint();
    if (isBounded() && (t1 < -eps || t1 > 1.0 + eps)) return false;
    if (other.isBounded() && (t2 < -eps || t2 > 1.0 + eps)) return false;
    point = p1;
    return true;
}

AcGeLine3d& AcGeLine3d::set(const AcGePoint3d& point, const AcGeVector3d& direction) {
    m_point = point;
    m_direction = direction;
    return *this;
}
