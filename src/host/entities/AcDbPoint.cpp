#include "host/entities/AcDbPoint.h"

Acad::ErrorStatus AcDbPoint::getGeomExtents(AcDbExtents& extents) const {
    extents = AcDbExtents(m_position, m_position);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPoint::transformBy(const AcGeMatrix3d& m) {
    m_position.transformBy(m);
    return Acad::eOk;
}
