#pragma once
// Operations on a group of drawing entities given by id, shared by sheets and elements: each id is
// acted on once however often it is listed, and ids that cannot be opened are passed over.

#include "host/base/AcArray.h"
#include "host/database/AcDbExtents.h"
#include "host/database/AcDbObjectId.h"
#include "host/geometry/AcGeVector3d.h"

namespace XimoGis::AssemblySchemes {

class CASEntityGroup {
public:
    // The ids without null ids and repeats, in first-seen order.
    static AcDbObjectIdArray Distinct(const AcDbObjectIdArray& ids);
    // Highlights (on) or ends the highlight of every entity through the host's redraw modes 3
    // and 4; the number of entities acted on.
    static int Highlight(const AcDbObjectIdArray& ids, bool on);
    // Moves every entity by the displacement; the number moved.
    static int Move(const AcDbObjectIdArray& ids, const AcGeVector3d& displacement);
    // The box around every entity's extents; false when none gives any.
    static bool GetExtents(const AcDbObjectIdArray& ids, AcDbExtents& extents);
};

}  // namespace XimoGis::AssemblySchemes
