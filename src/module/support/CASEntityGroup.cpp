#include "module/support/CASEntityGroup.h"

#include "framework/cad/CXimoCEdit.h"
#include "framework/cad/CXimoCEntityPtr.h"
#include "host/input/acdbAdsName.h"
#include "host/input/acedGraphics.h"

namespace XimoGis::AssemblySchemes {

namespace {
constexpr int kRedrawHighlight = 3;
constexpr int kRedrawUnhighlight = 4;
}  // namespace

AcDbObjectIdArray CASEntityGroup::Distinct(const AcDbObjectIdArray& ids) {
    AcDbObjectIdArray distinct;
    for (const AcDbObjectId& id : ids) {
        if (!id.isNull() && !distinct.contains(id)) distinct.append(id);
    }
    return distinct;
}

int CASEntityGroup::Highlight(const AcDbObjectIdArray& ids, bool on) {
    int marked = 0;
    for (const AcDbObjectId& id : Distinct(ids)) {
        ads_name name;
        if (acdbGetAdsName(name, id) != Acad::eOk) continue;
        if (acedRedraw(name, on ? kRedrawHighlight : kRedrawUnhighlight) == RTNORM) ++marked;
    }
    return marked;
}

int CASEntityGroup::Move(const AcDbObjectIdArray& ids, const AcGeVector3d& displacement) {
    int moved = 0;
    for (const AcDbObjectId& id : Distinct(ids)) {
        if (CXimoCEdit::moveEntity(id, displacement) == Acad::eOk) ++moved;
    }
    return moved;
}

bool CASEntityGroup::GetExtents(const AcDbObjectIdArray& ids, AcDbExtents& extents) {
    AcDbExtents box;
    bool found = false;
    for (const AcDbObjectId& id : Distinct(ids)) {
        CXimoCEntityPtr entity(id, AcDb::kForRead);
        AcDbExtents own;
        if (!entity || entity->getGeomExtents(own) != Acad::eOk || !own.isValid()) continue;
        box.addExt(own);
        found = true;
    }
    if (found) extents = box;
    return found;
}

}  // namespace XimoGis::AssemblySchemes
