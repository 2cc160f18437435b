#include "module/editor/CASFlange.h"

#include "module/instances/CASInstance.h"
#include "module/manager/IAssemblyElementTypeProvider.h"
#include "module/support/CASEntityGroup.h"

#include "framework/cad/CXimoCEntityPtr.h"
#include "host/entities/AcDbBlockReference.h"
#include "host/entities/AcDbLine.h"

#include <memory>

namespace XimoGis::AssemblySchemes {

CASFlange::CASFlange(const AcGePoint3d& start, const AcGePoint3d& end, AcDbObjectId id, int part)
    : m_start(start), m_end(end), m_id(id), m_part(part) {}

bool CASFlange::IsFlangeLine(const AcDbEntity* entity) {
    return dynamic_cast<const AcDbLine*>(entity) && entity->xDataFor(IAssemblyElementTypeProvider::kFlangeApplication);
}

std::vector<CASFlange> CASFlange::Find(const AcDbObjectIdArray& ids) {
    std::vector<CASFlange> flanges;
    for (const AcDbObjectId& id : ids) {
        CXimoCEntityPtr entity(id, AcDb::kForRead);
        if (IsFlangeLine(entity.get())) {
            const auto* line = static_cast<const AcDbLine*>(entity.get());
            flanges.emplace_back(line->startPoint(), line->endPoint(), id);
            continue;
        }
        // Elements drawn from block files keep their flange lines inside the block.
        const auto* reference = dynamic_cast<const AcDbBlockReference*>(entity.get());
        AcDbVoidPtrArray parts;
        if (!reference || reference->explode(parts) != Acad::eOk) continue;
        int part = 0;
        for (void* item : parts) {
            std::unique_ptr<AcDbEntity> piece(static_cast<AcDbEntity*>(item));
            if (!IsFlangeLine(piece.get())) continue;
            const auto* line = static_cast<const AcDbLine*>(piece.get());
            flanges.emplace_back(line->startPoint(), line->endPoint(), id, part++);
        }
    }
    return flanges;
}

std::vector<CASFlange::Free> CASFlange::FindFree(const CASInstance& sheet, double tolerance) {
    std::vector<Free> all;
    for (const auto& [id, element] : sheet.GetElementInstances()) {
        AcDbExtents box;
        const AcGePoint3d owner =
            CASEntityGroup::GetExtents(*element->GetObjects(), box) ? box.center() : AcGePoint3d();
        for (const CASFlange& flange : Find(*element->GetObjects())) all.push_back({flange, owner});
    }
    std::vector<Free> free;
    for (std::size_t i = 0; i < all.size(); ++i) {
        bool joined = false;
        for (std::size_t j = 0; j < all.size() && !joined; ++j)
            joined = i != j && all[i].flange.GetMidPoint().distanceTo(all[j].flange.GetMidPoint()) <= tolerance;
        if (!joined) free.push_back(all[i]);
    }
    return free;
}

AcGePoint3d CASFlange::GetMidPoint() const {
    return AcGePoint3d((m_start.x + m_end.x) * 0.5, (m_start.y + m_end.y) * 0.5, (m_start.z + m_end.z) * 0.5);
}

AcGeLine3d CASFlange::GetAxis() const {
    const AcGeVector3d along = m_end - m_start;
    return AcGeLine3d(GetMidPoint(), AcGeVector3d(-along.y, along.x, 0.0));
}

AcGeVector3d CASFlange::GetOutwardNormal(const AcGePoint3d& inside) const {
    const AcGeVector3d axis = GetAxis().direction();
    return (GetMidPoint() - inside).dotProduct(axis) < 0.0 ? -axis : axis;
}

double CASFlange::DistanceTo(const AcGePoint3d& point) const {
    return AcGeLineSeg3d(m_start, m_end).closestPointTo(point).distanceTo(point);
}

}  // namespace XimoGis::AssemblySchemes
