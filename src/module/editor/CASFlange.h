#pragma once
// A flange line of a drawn element: a line carrying extended data of the registered application
// "AMS_PRIRUBNICA", drawn where the element's flange face meets the next element. Its axis is the
// line through its midpoint, square to it in the drawing plane; elements are joined flange to
// flange, midpoint on midpoint, with their axes in one line.

#include "host/base/AcArray.h"
#include "host/database/AcDbObjectId.h"
#include "host/geometry/AcGeLine3d.h"

#include <vector>

class AcDbEntity;

namespace XimoGis::AssemblySchemes {

class CASInstance;

class CASFlange {
public:
    // `part` tells apart the flange lines of one block reference.
    CASFlange(const AcGePoint3d& start, const AcGePoint3d& end, AcDbObjectId id = {}, int part = 0);

    // Whether the entity is a line marked as a flange line.
    static bool IsFlangeLine(const AcDbEntity* entity);
    // The flange lines among the entities, in their order, those in block references included
    // (where the reference puts them); ids that cannot be opened are passed over.
    static std::vector<CASFlange> Find(const AcDbObjectIdArray& ids);
    // The flanges of a sheet's elements that no other flange of the sheet is joined to (midpoints
    // apart by more than `tolerance`), each with the centre of its element's box as `owner`.
    struct Free;
    static std::vector<Free> FindFree(const CASInstance& sheet, double tolerance);

    // The line, or the block reference that shows it.
    AcDbObjectId GetId() const { return m_id; }
    int GetPart() const { return m_part; }
    bool IsSameLine(const CASFlange& other) const { return m_id == other.m_id && m_part == other.m_part; }
    const AcGePoint3d& GetStart() const { return m_start; }
    const AcGePoint3d& GetEnd() const { return m_end; }
    AcGePoint3d GetMidPoint() const;
    AcGeLine3d GetAxis() const;
    // The axis direction that points away from `inside` (a point within the element); the
    // axis's own direction when `inside` lies on the flange line.
    AcGeVector3d GetOutwardNormal(const AcGePoint3d& inside) const;
    // Distance from the point to the flange line segment.
    double DistanceTo(const AcGePoint3d& point) const;

private:
    AcGePoint3d m_start;
    AcGePoint3d m_end;
    AcDbObjectId m_id;
    int m_part = 0;
};

struct CASFlange::Free {
    CASFlange flange;
    AcGePoint3d owner;
};

}  // namespace XimoGis::AssemblySchemes
