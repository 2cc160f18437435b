#pragma once
// Editing entities by id through the CAD wrapper. Each call opens the entity for write, changes
// it and closes it; a failure leaves the entity as it was.

#include "host/database/AcDbObjectId.h"
#include "host/geometry/AcGeLine3d.h"
#include "host/geometry/AcGeMatrix3d.h"

namespace XimoGis {

class CXimoCEdit {
public:
    // A copy in the same block as the original; its id goes to copy.
    static Acad::ErrorStatus copyEntity(AcDbObjectId id, AcDbObjectId& copy);
    static Acad::ErrorStatus moveEntity(AcDbObjectId id, const AcGeVector3d& displacement);
    static Acad::ErrorStatus moveEntity(AcDbObjectId id, const AcGePoint3d& from, const AcGePoint3d& to);
    static Acad::ErrorStatus scaleEntity(AcDbObjectId id, double factor, const AcGePoint3d& base);
    static Acad::ErrorStatus rotateEntity(AcDbObjectId id, double angle, const AcGePoint3d& base);
    static Acad::ErrorStatus mirrorEntity(AcDbObjectId id, const AcGeLine3d& mirrorLine);
    static Acad::ErrorStatus transformEntity(AcDbObjectId id, const AcGeMatrix3d& m);
};

}  // namespace XimoGis
