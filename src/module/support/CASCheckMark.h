#pragma once
// The check mark: a small tick drawn at a point to mark a sheet or an element as done or chosen.
// Its outline is a unit-size polygon centred on the origin; drawing scales it by half the size
// and moves it to the point, so the tick is about half the size across. The scheme editor reads
// the same outline for its own check marks.

#include "host/geometry/AcGePoint3d.h"

namespace XimoGis::AssemblySchemes {

class CASCheckMark {
public:
    // 24 vertices and the closing repeat of the first; spans about -0.49..0.49 by -0.47..0.35.
    static const wchar_t* const kOutlineWKT;
    // Sheets and elements are ticked in green.
    static constexpr int kColor = 3;

    // Draws the outline as a polyline into model space of the working database in a colour index;
    // the entities are not kept track of. Returns the number of entities drawn (0 without a
    // working database).
    static int Draw(const AcGePoint3d& point, double size, int color);
};

}  // namespace XimoGis::AssemblySchemes
