#include "framework/utility/CUtility.h"

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <random>

#include <geos/geom/GeometryCollection.h>
#include <geos/geom/LineString.h>
#include <geos/geom/Point.h>
#include <geos/geom/Polygon.h>

#include "framework/cad/CXimoCDraw.h"
#include "framework/utility/CFilePath.h"
#include "host/input/acedGraphics.h"

namespace XimoGis::Utility {

using XimoGis::CXimoCDraw;
using XimoGis::CXimoCEntityPtr;

std::wstring CUtility::CreateGUID() {
    // Version 4 (random) GUID.
    static thread_local std::mt19937_64 engine{std::random_device{}()};
    std::uniform_int_distribution<unsigned> byte(0, 255);
    unsigned char b[16];
    for (auto& v : b) v = static_cast<unsigned char>(byte(engine));
    b[6] = static_cast<unsigned char>((b[6] & 0x0F) | 0x40);
    b[8] = static_cast<unsigned char>((b[8] & 0x3F) | 0x80);
    wchar_t text[40];
    std::swprintf(text, 40, L"{%02X%02X%02X%02X-%02X%02X-%02X%02X-%02X%02X-%02X%02X%02X%02X%02X%02X}", b[0], b[1],
                  b[2], b[3], b[4], b[5], b[6], b[7], b[8], b[9], b[10], b[11], b[12], b[13], b[14], b[15]);
    return text;
}

bool CUtility::FileExists(const std::wstring& path) {
    std::error_code ec;
    return !path.empty() && std::filesystem::is_regular_file(CFilePath::ToPath(path), ec);
}

void CUtility::acedGrDrawCross(const AcGePoint3d& point, double size, int color) {
    const double h = size / 2.0;
    const ads_point a = {point.x - h, point.y - h, point.z}, b = {point.x + h, point.y + h, point.z};
    const ads_point c = {point.x - h, point.y + h, point.z}, d = {point.x + h, point.y - h, point.z};
    ::acedGrDraw(a, b, color, 0);
    ::acedGrDraw(c, d, color, 0);
}

int CUtility::EraseElements(const AcDbObjectIdArray& ids) {
    int erased = 0;
    for (const AcDbObjectId& id : ids) {
        CXimoCEntityPtr entity(id, AcDb::kForWrite);
        if (entity && entity->erase() == Acad::eOk) ++erased;
    }
    return erased;
}

namespace {
AcArray<AcGePoint3d> pointsOf(const geos::geom::LineString& line) {
    AcArray<AcGePoint3d> points;
    const auto coordinates = line.getCoordinates();
    for (std::size_t i = 0; i < coordinates->size(); ++i) {
        const geos::geom::Coordinate& c = coordinates->getAt(i);
        points.append(AcGePoint3d(c.x, c.y, std::isnan(c.z) ? 0.0 : c.z));
    }
    return points;
}

int keep(CXimoCEntityPtr entity, Adesk::UInt16 color, AcDbObjectIdArray* ids) {
    if (!entity) return 0;
    entity.setColorIndex(color);
    if (ids) ids->append(entity.objectId());
    return 1;
}
}  // namespace

int CUtility::drawGeometry(const geos::geom::Geometry* geometry, Adesk::UInt16 color, AcDbObjectIdArray* ids) {
    if (!geometry || geometry->isEmpty()) return 0;
    if (const auto* point = dynamic_cast<const geos::geom::Point*>(geometry)) {
        const geos::geom::Coordinate* c = point->getCoordinate();
        return keep(CXimoCDraw::point(AcGePoint3d(c->x, c->y, std::isnan(c->z) ? 0.0 : c->z)), color, ids);
    }
    if (const auto* line = dynamic_cast<const geos::geom::LineString*>(geometry)) {
        // A ring comes out closed, without its repeated last point.
        AcArray<AcGePoint3d> points = pointsOf(*line);
        const bool closed = line->isClosed() && points.length() > 3;
        if (closed) points.removeLast();
        return keep(CXimoCDraw::polylineLW(points, closed), color, ids);
    }
    if (const auto* polygon = dynamic_cast<const geos::geom::Polygon*>(geometry)) {
        int drawn = drawGeometry(polygon->getExteriorRing(), color, ids);
        for (std::size_t i = 0; i < polygon->getNumInteriorRing(); ++i)
            drawn += drawGeometry(polygon->getInteriorRingN(i), color, ids);
        return drawn;
    }
    int drawn = 0;
    for (std::size_t i = 0; i < geometry->getNumGeometries(); ++i) {
        const geos::geom::Geometry* part = geometry->getGeometryN(i);
        if (part != geometry) drawn += drawGeometry(part, color, ids);
    }
    return drawn;
}

}  // namespace XimoGis::Utility
