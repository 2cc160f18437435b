#pragma once
// A view of a fitting as plane curves in millimetres, the first connection at the origin: lines
// (some of them flange faces), circles, counter-clockwise arcs and polylines. Drawing it makes one
// entity per curve; the lines of flange faces carry extended data of "AMS_PRIRUBNICA": the DN
// and the PN of the connection, two 16-bit integers (1070).

#include "host/base/AcArray.h"
#include "host/database/AcDbObjectId.h"
#include "host/geometry/AcGePoint3d.h"

#include <vector>

namespace XimoGis::AssemblySchemes::Fittings {

class CFittingSketch {
public:
    struct Line {
        AcGePoint2d start;
        AcGePoint2d end;
        bool flangeFace = false;
        double dn = 0.0;
        double pn = 0.0;
    };
    struct Circle {
        AcGePoint2d centre;
        double radius = 0.0;
    };
    struct Arc {
        AcGePoint2d centre;
        double radius = 0.0;
        double startAngle = 0.0;  // radians; the arc runs counter-clockwise to the end angle
        double endAngle = 0.0;
    };
    struct Polyline {
        std::vector<AcGePoint2d> points;
        bool closed = false;
    };

    void AddLine(const AcGePoint2d& start, const AcGePoint2d& end);
    void AddFlangeFace(const AcGePoint2d& start, const AcGePoint2d& end, double dn, double pn);
    // Curves of no size are left out.
    void AddCircle(const AcGePoint2d& centre, double radius);
    void AddArc(const AcGePoint2d& centre, double radius, double startAngle, double endAngle);
    void AddPolyline(std::vector<AcGePoint2d> points, bool closed);

    const std::vector<Line>& GetLines() const { return m_lines; }
    const std::vector<Circle>& GetCircles() const { return m_circles; }
    const std::vector<Arc>& GetArcs() const { return m_arcs; }
    const std::vector<Polyline>& GetPolylines() const { return m_polylines; }
    int GetFlangeFaceCount() const;

    // Draws into model space of the working database, every coordinate times `scale`, the origin
    // at `at`. Appends the new ids; false, with nothing left drawn, when an entity cannot be made.
    bool Draw(const AcGePoint3d& at, double scale, AcArray<AcDbObjectId>& ids) const;

private:
    std::vector<Line> m_lines;
    std::vector<Circle> m_circles;
    std::vector<Arc> m_arcs;
    std::vector<Polyline> m_polylines;
};

}  // namespace XimoGis::AssemblySchemes::Fittings
