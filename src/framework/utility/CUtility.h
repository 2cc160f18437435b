#pragma once
// General helpers of the framework.

#include <string>

#include <geos/geom/Geometry.h>

#include "host/base/AcArray.h"
#include "host/database/AcDbObjectId.h"
#include "host/geometry/AcGePoint3d.h"

namespace XimoGis::Utility {

class CUtility {
public:
    // A new random GUID as uppercase text in braces, e.g. "{0F8FAD5B-D9CB-469F-A165-70867728950E}":
    // the form the framework writes into entity attributes and logs.
    static std::wstring CreateGUID();
    static bool FileExists(const std::wstring& path);
    // Erases the entities of the list that can be opened; returns how many were erased.
    static int EraseElements(const AcDbObjectIdArray& ids);
    // Draws a geometry into model space of the working database in a colour: points as points,
    // line strings as polylines, polygons as closed polylines per ring, collections part by part.
    // The new ids are appended to ids when given. Returns the number of entities drawn.
    // Shows a temporary cross of the given size (drawing units) at a point, in a colour; it goes
    // with the next redraw.
    static void acedGrDrawCross(const AcGePoint3d& point, double size, int color);
    static int drawGeometry(const geos::geom::Geometry* geometry, Adesk::UInt16 color, AcDbObjectIdArray* ids = nullptr);
};

}  // namespace XimoGis::Utility
