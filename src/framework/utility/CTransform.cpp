#include "framework/utility/CTransform.h"

#include <cmath>

#include <geos/geom/CoordinateSequence.h>
#include <geos/geom/CoordinateArraySequence.h>
#include <geos/geom/GeometryFactory.h>
#include <geos/geom/LinearRing.h>
#include <geos/geom/Point.h>
#include <geos/geom/Polygon.h>
#include <geos/io/WKTReader.h>
#include <geos/util/GEOSException.h>

#include "host/base/AcString.h"

namespace XimoGis::Utility {

namespace {
const geos::geom::GeometryFactory& factory() { return *geos::geom::GeometryFactory::getDefaultInstance(); }

std::unique_ptr<geos::geom::CoordinateSequence> toSequence(const AcArray<AcGePoint3d>& points, bool close) {
    std::vector<geos::geom::Coordinate> coordinates;
    for (const AcGePoint3d& p : points) coordinates.emplace_back(p.x, p.y, p.z);
    if (close && !points.isEmpty() && !points.first().isEqualTo(points.last()))
        coordinates.emplace_back(points.first().x, points.first().y, points.first().z);
    return std::make_unique<geos::geom::CoordinateArraySequence>(std::move(coordinates), 3);
}
}  // namespace

bool CTransform::GetPointsFromWKT(const std::wstring& wkt, AcArray<AcGePoint3d>& points) {
    points.removeAll();
    try {
        geos::io::WKTReader reader(factory());
        const std::unique_ptr<geos::geom::Geometry> geometry = reader.read(acutWcharToUtf8(wkt));
        const std::unique_ptr<geos::geom::CoordinateSequence> coordinates = geometry->getCoordinates();
        for (std::size_t i = 0; i < coordinates->size(); ++i) {
            const geos::geom::Coordinate& c = coordinates->getAt(i);
            points.append(AcGePoint3d(c.x, c.y, std::isnan(c.z) ? 0.0 : c.z));
        }
        return true;
    } catch (const geos::util::GEOSException&) {
        points.removeAll();
        return false;
    }
}

std::unique_ptr<geos::geom::LineString> CTransform::GetGeosLineString(const AcArray<AcGePoint3d>& points) {
    if (points.length() < 2) return nullptr;
    return factory().createLineString(toSequence(points, false));
}

std::unique_ptr<geos::geom::Geometry> CTransform::GetGeosPoint(const AcGePoint3d& point) {
    return std::unique_ptr<geos::geom::Geometry>(factory().createPoint(geos::geom::Coordinate(point.x, point.y, point.z)));
}

std::unique_ptr<geos::geom::Geometry> CTransform::GetGeosPolygon(const AcArray<AcGePoint3d>& ring) {
    if (ring.length() < 3) return nullptr;
    try {
        return factory().createPolygon(factory().createLinearRing(toSequence(ring, true)));
    } catch (const geos::util::GEOSException&) {
        return nullptr;
    }
}

}  // namespace XimoGis::Utility
