#pragma once
// An axis-aligned box; empty until the first point is added.

#include "host/geometry/AcGeMatrix3d.h"

class AcDbExtents {
public:
    AcDbExtents();
    AcDbExtents(const AcGePoint3d& min, const AcGePoint3d& max);

    AcGePoint3d minPoint() const { return m_min; }
    AcGePoint3d maxPoint() const { return m_max; }
    bool isValid() const { return m_min.x <= m_max.x && m_min.y <= m_max.y && m_min.z <= m_max.z; }
    AcGePoint3d center() const;

    void addPoint(const AcGePoint3d& p);
    void addExt(const AcDbExtents& other);
    // Replaces the box by the box around its transformed corners.
    void transformBy(const AcGeMatrix3d& m);
    bool contains(const AcGePoint3d& p, double tol = 0.0) const;

private:
    AcGePoint3d m_min;
    AcGePoint3d m_max;
};
