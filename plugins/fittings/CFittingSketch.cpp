#include "fittings/CFittingSketch.h"

#include "module/manager/IAssemblyElementTypeProvider.h"

#include "framework/cad/CXimoCDraw.h"
#include "framework/utility/CUtility.h"

#include <algorithm>
#include <cmath>

namespace XimoGis::AssemblySchemes::Fittings {

namespace {

constexpr double kNoSize = 1e-9;

// Marks a flange face line; the application is registered in the line's drawing first.
bool MarkFlangeFace(AcDbEntity& line, double dn, double pn) {
    AcDbDatabase* db = line.database();
    const std::wstring application = IAssemblyElementTypeProvider::kFlangeApplication;
    if (!db || db->registerApplication(application) != Acad::eOk) return false;
    AcDbXDataApp data{application,
                      {AcDbXDataValue::int16(static_cast<Adesk::Int16>(std::lround(dn))),
                       AcDbXDataValue::int16(static_cast<Adesk::Int16>(std::lround(pn)))}};
    return line.setXData(data) == Acad::eOk;
}

}  // namespace

void CFittingSketch::AddLine(const AcGePoint2d& start, const AcGePoint2d& end) {
    if (start.distanceTo(end) > kNoSize) m_lines.push_back({start, end});
}

void CFittingSketch::AddFlangeFace(const AcGePoint2d& start, const AcGePoint2d& end, double dn, double pn) {
    if (start.distanceTo(end) > kNoSize) m_lines.push_back({start, end, true, dn, pn});
}

void CFittingSketch::AddCircle(const AcGePoint2d& centre, double radius) {
    if (radius > kNoSize) m_circles.push_back({centre, radius});
}

void CFittingSketch::AddArc(const AcGePoint2d& centre, double radius, double startAngle, double endAngle) {
    if (radius > kNoSize) m_arcs.push_back({centre, radius, startAngle, endAngle});
}

void CFittingSketch::AddPolyline(std::vector<AcGePoint2d> points, bool closed) {
    if (points.size() > 1) m_polylines.push_back({std::move(points), closed});
}

int CFittingSketch::GetFlangeFaceCount() const {
    return static_cast<int>(std::count_if(m_lines.begin(), m_lines.end(), [](const Line& l) { return l.flangeFace; }));
}

bool CFittingSketch::Draw(const AcGePoint3d& at, double scale, AcArray<AcDbObjectId>& ids) const {
    const auto place = [&](const AcGePoint2d& p) { return AcGePoint3d(at.x + p.x * scale, at.y + p.y * scale, at.z); };
    AcDbObjectIdArray drawn;
    const auto keep = [&drawn](const CXimoCEntityPtr& entity) {
        if (!entity) return false;
        drawn.append(entity.objectId());
        return true;
    };
    bool ok = true;
    for (const Line& line : m_lines) {
        if (!ok) break;
        CXimoCEntityPtr entity = CXimoCDraw::line(place(line.start), place(line.end));
        ok = keep(entity) && (!line.flangeFace || MarkFlangeFace(*entity.get(), line.dn, line.pn));
    }
    for (const Circle& circle : m_circles)
        ok = ok && keep(CXimoCDraw::circle(place(circle.centre), circle.radius * scale));
    for (const Arc& arc : m_arcs)
        ok = ok && keep(CXimoCDraw::arc(place(arc.centre), arc.radius * scale, arc.startAngle, arc.endAngle));
    for (const Polyline& polyline : m_polylines) {
        AcArray<AcGePoint3d> points;
        for (const AcGePoint2d& p : polyline.points) points.append(place(p));
        ok = ok && keep(CXimoCDraw::polylineLW(points, polyline.closed));
    }
    if (!ok) {
        Utility::CUtility::EraseElements(drawn);
        return false;
    }
    ids.append(drawn);
    return true;
}

}  // namespace XimoGis::AssemblySchemes::Fittings
