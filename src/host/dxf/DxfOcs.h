#pragma once
// The object coordinate system of planar entities in DXF files (the "arbitrary axis
// algorithm"): from the extrusion direction alone it fixes the plane's X and Y axes. Circles
// store their centre in it.

#include "host/geometry/AcGePoint3d.h"

class DxfOcs {
public:
    explicit DxfOcs(const AcGeVector3d& normal);

    // The world system itself (extrusion along +Z).
    bool isWorld() const { return m_world; }
    // The extrusion as a unit vector (+Z for a zero one).
    const AcGeVector3d& normal() const { return m_z; }
    AcGePoint3d fromWorld(const AcGePoint3d& p) const;
    AcGePoint3d toWorld(const AcGePoint3d& p) const;

private:
    AcGeVector3d m_x, m_y, m_z;
    bool m_world;
};
