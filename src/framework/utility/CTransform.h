#pragma once
// Conversions between drawing points and GEOS geometries.

#include <memory>
#include <string>

#include <geos/geom/Geometry.h>
#include <geos/geom/LineString.h>

#include "host/base/AcArray.h"
#include "host/geometry/AcGePoint3d.h"

namespace XimoGis::Utility {

class CTransform {
public:
    // Every vertex of the geometry written as WKT, in order (z = 0 where the text has none).
    // False, with points left empty, when the text is not valid WKT.
    static bool GetPointsFromWKT(const std::wstring& wkt, AcArray<AcGePoint3d>& points);
    // A line string through the points; null for fewer than two.
    static std::unique_ptr<geos::geom::LineString> GetGeosLineString(const AcArray<AcGePoint3d>& points);
    // A point geometry, and a polygon through a closed ring of points (closed here when open).
    static std::unique_ptr<geos::geom::Geometry> GetGeosPoint(const AcGePoint3d& point);
    static std::unique_ptr<geos::geom::Geometry> GetGeosPolygon(const AcArray<AcGePoint3d>& ring);
};

}  // namespace XimoGis::Utility
