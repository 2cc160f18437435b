#include "host/entities/AcDbLine.h"

Acad::ErrorStatus AcDbLine::getGeomExtents(AcDbExtents& extents) const {
    extents = AcDbExtents(m_start, m_end);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::transformBy(const AcGeMatrix3d& m) {
    m_start.transformBy(m);
    m_end.transformBy(m);
    return Acad::eOk;
}
