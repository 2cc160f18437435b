#include "module/editor/CDragGenData_Draw.h"

#include "module/instances/CASInstance.h"
#include "module/support/CASEntityGroup.h"

#include "framework/cad/CXimoCEdit.h"

#include <cmath>
#include <limits>

namespace XimoGis::AssemblySchemes {

namespace {

constexpr double kPi = 3.14159265358979323846;

double Angle(const AcGeVector3d& v) { return std::atan2(v.y, v.x); }

// The item at the smallest distance; null for none.
template <class Item, class Distance>
const Item* Nearest(const std::vector<Item>& items, Distance distance) {
    const Item* nearest = nullptr;
    double best = std::numeric_limits<double>::max();
    for (const Item& item : items) {
        const double d = distance(item);
        if (d < best) {
            best = d;
            nearest = &item;
        }
    }
    return nearest;
}

}  // namespace

void CDragGenData_Draw::Start(const AcDbObjectIdArray& ids, const AcGePoint3d& handle, CASEntityMover* mover,
                              SheetFinder sheets) {
    m_ids = ids;
    m_handle = handle;
    m_lastCursor = handle;
    m_handleFlange.setNull();
    m_handleFlangePart = 0;
    m_placement.setToIdentity();
    m_mover = mover;
    m_sheets = std::move(sheets);
    m_mode = eModeMove;
}

void CDragGenData_Draw::Finish() {
    m_ids.removeAll();
    m_handleFlange.setNull();
    m_sheets.clear();
}

void CDragGenData_Draw::OnCursor(const AcGePoint3d& cursor) {
    if (m_ids.isEmpty()) return;
    switch (m_mode) {
        case eModeRotate: Rotate(cursor); break;
        case eModeMirror:
            Mirror();
            m_mode = eModeMove;
            break;
        case eModeElementFlange:
            TakeFlange(cursor);
            m_mode = eModeMove;
            break;
        case eModeSchemeFlange: JoinSchemeFlange(cursor); break;
        default: MoveHandleTo(cursor); break;
    }
    m_lastCursor = cursor;
}

double CDragGenData_Draw::GetRotationDegrees() const {
    return Angle(m_placement * AcGeVector3d::kXAxis) * 180.0 / kPi;
}

void CDragGenData_Draw::MoveHandleTo(const AcGePoint3d& point) {
    const AcGeVector3d displacement = point - m_handle;
    if (displacement.isZeroLength()) return;
    if (m_mover) m_mover->Move(m_ids, displacement);
    m_placement.preMultBy(AcGeMatrix3d::translation(displacement));
    m_handle = point;
}

void CDragGenData_Draw::Turn(const AcGeMatrix3d& matrix) {
    for (const AcDbObjectId& id : m_ids) CXimoCEdit::transformEntity(id, matrix);
    m_placement.preMultBy(matrix);
    m_handle = matrix * m_handle;
}

void CDragGenData_Draw::Rotate(const AcGePoint3d& cursor) {
    const AcGeVector3d towards = cursor - m_handle;
    if (towards.isZeroLength()) return;
    const double step = kRotationStepDegrees * kPi / 180.0;
    const double wanted = std::round(Angle(towards) / step) * step;
    const double turn = wanted - Angle(m_placement * AcGeVector3d::kXAxis);
    if (std::abs(std::remainder(turn, 2.0 * kPi)) < 1e-12) return;
    Turn(AcGeMatrix3d::rotation(turn, AcGeVector3d::kZAxis, m_handle));
}

void CDragGenData_Draw::Mirror() {
    const std::optional<CASFlange> held = HeldFlange();
    const AcGeVector3d axis = held ? held->GetAxis().direction() : m_placement * AcGeVector3d::kXAxis;
    Turn(AcGeMatrix3d::mirroring(AcGeLine3d(m_handle, axis)));
}

std::optional<CASFlange> CDragGenData_Draw::HeldFlange() const {
    if (m_handleFlange.isNull()) return std::nullopt;
    for (const CASFlange& flange : CASFlange::Find(AcDbObjectIdArray{m_handleFlange})) {
        if (flange.GetPart() == m_handleFlangePart) return flange;
    }
    return std::nullopt;
}

void CDragGenData_Draw::Hold(const CASFlange& flange) {
    m_handleFlange = flange.GetId();
    m_handleFlangePart = flange.GetPart();
    m_handle = flange.GetMidPoint();
}

void CDragGenData_Draw::TakeFlange(const AcGePoint3d& cursor) {
    const std::vector<CASFlange> flanges = CASFlange::Find(m_ids);
    const CASFlange* nearest = Nearest(flanges, [&](const CASFlange& f) { return f.DistanceTo(cursor); });
    if (nearest) Hold(*nearest);
    MoveHandleTo(cursor);
}

void CDragGenData_Draw::JoinSchemeFlange(const AcGePoint3d& cursor) {
    const boost::shared_ptr<CASInstance> sheet = m_sheets ? m_sheets(cursor) : boost::shared_ptr<CASInstance>();
    const std::vector<CASFlange::Free> free =
        sheet ? CASFlange::FindFree(*sheet, kJoinTolerance) : std::vector<CASFlange::Free>();
    const CASFlange::Free* target =
        Nearest(free, [&](const CASFlange::Free& f) { return f.flange.DistanceTo(cursor); });
    if (!target) {
        MoveHandleTo(cursor);  // nothing to join to: the element just follows the cursor
        return;
    }
    const AcGePoint3d joint = target->flange.GetMidPoint();
    const std::vector<CASFlange> own = CASFlange::Find(m_ids);
    const std::optional<CASFlange> held = HeldFlange();
    const CASFlange* chosen = held ? &*held : nullptr;
    if (!chosen) chosen = Nearest(own, [&](const CASFlange& f) { return f.GetMidPoint().distanceTo(joint); });
    if (!chosen) {
        MoveHandleTo(joint);
        return;
    }
    // Turn the chosen flange to face the scheme flange, then bring the midpoints together.
    const AcGeVector3d ownNormal = chosen->GetOutwardNormal(Inside());
    const AcGeVector3d schemeNormal = target->flange.GetOutwardNormal(target->owner);
    Hold(*chosen);
    const double turn = Angle(-schemeNormal) - Angle(ownNormal);
    if (std::abs(std::remainder(turn, 2.0 * kPi)) >= 1e-12)
        Turn(AcGeMatrix3d::rotation(turn, AcGeVector3d::kZAxis, m_handle));
    MoveHandleTo(joint);
}

AcGePoint3d CDragGenData_Draw::Inside() const {
    AcDbExtents box;
    return CASEntityGroup::GetExtents(m_ids, box) ? box.center() : m_handle;
}

}  // namespace XimoGis::AssemblySchemes
