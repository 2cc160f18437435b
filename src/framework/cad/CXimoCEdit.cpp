#include "framework/cad/CXimoCEdit.h"

#include "framework/cad/CXimoCEntityPtr.h"

namespace XimoGis {

Acad::ErrorStatus CXimoCEdit::copyEntity(AcDbObjectId id, AcDbObjectId& copy) {
    copy.setNull();
    CXimoCEntityPtr original(id, AcDb::kForRead);
    if (!original) return original.openStatus();
    const AcDbObjectId block = original->ownerId();
    CXimoCEntityPtr clone(static_cast<AcDbEntity*>(original->clone()));
    original.close();
    if (!clone) return Acad::eNotApplicable;
    const Acad::ErrorStatus es = clone.addToDrawing(block);
    if (es == Acad::eOk) copy = clone.objectId();
    return es;
}

Acad::ErrorStatus CXimoCEdit::transformEntity(AcDbObjectId id, const AcGeMatrix3d& m) {
    CXimoCEntityPtr entity(id, AcDb::kForWrite);
    if (!entity) return entity.openStatus();
    return entity->transformBy(m);
}

Acad::ErrorStatus CXimoCEdit::moveEntity(AcDbObjectId id, const AcGeVector3d& displacement) {
    return transformEntity(id, AcGeMatrix3d::translation(displacement));
}

Acad::ErrorStatus CXimoCEdit::moveEntity(AcDbObjectId id, const AcGePoint3d& from, const AcGePoint3d& to) {
    return moveEntity(id, to - from);
}

Acad::ErrorStatus CXimoCEdit::scaleEntity(AcDbObjectId id, double factor, const AcGePoint3d& base) {
    if (!(factor > 0.0)) return Acad::eInvalidInput;
    return transformEntity(id, AcGeMatrix3d::scaling(factor, base));
}

Acad::ErrorStatus CXimoCEdit::rotateEntity(AcDbObjectId id, double angle, const AcGePoint3d& base) {
    return transformEntity(id, AcGeMatrix3d::rotation(angle, AcGeVector3d::kZAxis, base));
}

Acad::ErrorStatus CXimoCEdit::mirrorEntity(AcDbObjectId id, const AcGeLine3d& mirrorLine) {
    return transformEntity(id, AcGeMatrix3d::mirroring(mirrorLine));
}

}  // namespace XimoGis
