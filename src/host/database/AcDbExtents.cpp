#include "host/database/AcDbExtents.h"

#include <algorithm>
#include <limits>

AcDbExtents::AcDbExtents() {
    const double big = std::numeric_limits<double>::max();
    m_min.set(big, big, big);
    m_max.set(-big, -big, -big);
}

AcDbExtents::AcDbExtents(const AcGePoint3d& min, const AcGePoint3d& max) : AcDbExtents() {
    addPoint(min);
    addPoint(max);
}

AcGePoint3d AcDbExtents::center() const {
    return {(m_min.x + m_max.x) * 0.5, (m_min.y + m_max.y) * 0.5, (m_min.z + m_max.z) * 0.5};
}

void AcDbExtents::addPoint(const AcGePoint3d& p) {
    m_min.set(std::min(m_min.x, p.x), std::min(m_min.y, p.y), std::min(m_min.z, p.z));
    m_max.set(std::max(m_max.x, p.x), std::max(m_max.y, p.y), std::max(m_max.z, p.z));
}

void AcDbExtents::addExt(const AcDbExtents& other) {
    if (!other.isValid()) return;
    addPoint(other.m_min);
    addPoint(other.m_max);
}

void AcDbExtents::transformBy(const AcGeMatrix3d& m) {
    if (!isValid()) return;
    AcDbExtents out;
    for (int i = 0; i < 8; ++i)
        out.addPoint(m * AcGePoint3d(i & 1 ? m_max.x : m_min.x, i & 2 ? m_max.y : m_min.y, i & 4 ? m_max.z : m_min.z));
    *this = out;
}

bool AcDbExtents::contains(const AcGePoint3d& p, double tol) const {
    return isValid() && p.x >= m_min.x - tol && p.x <= m_max.x + tol && p.y >= m_min.y - tol &&
           p.y <= m_max.y + tol && p.z >= m_min.z - tol && p.z <= m_max.z + tol;
}
