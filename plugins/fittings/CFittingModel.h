#pragma once
// A fitting as simple solids in its own frame, in millimetres: the first connection's flange face
// lies at the origin facing -X, the main run goes along +X, Y is across it in the horizontal
// plane and Z points up. Views project this model (CFittingProjection).
//
// Solids: tubes (cylinders or cones along a straight axis), flanges (discs whose face is where
// the fitting is joined) and bends (a tube swept around a centre in one plane).

#include "host/geometry/AcGePoint3d.h"

#include <utility>
#include <vector>

namespace XimoGis::AssemblySchemes::Fittings {

struct CTubePart {
    AcGePoint3d start;
    AcGePoint3d end;
    double startDiameter = 0.0;
    double endDiameter = 0.0;
    bool capped = false;  // the end discs are drawn (a closed body, not a barrel between other parts)
};

struct CFlangePart {
    AcGePoint3d face;      // centre of the face
    AcGeVector3d normal;   // unit, out of the face, away from the fitting
    double diameter = 0.0;
    double thickness = 0.0;
    bool joint = true;     // the face is where another element is joined
    double dn = 0.0;       // of the connection, carried by the marked face line
    double pn = 0.0;
};

struct CBendPart {
    AcGePoint3d centre;      // of the bend's curvature
    AcGeVector3d radial;     // unit, from the centre to the start of the bend's axis
    AcGeVector3d direction;  // unit, the axis' direction at the start (square to `radial`)
    double radius = 0.0;     // of the axis
    double angle = 0.0;      // swept, radians
    double diameter = 0.0;   // of the tube
};

class CFittingModel {
public:
    void AddTube(const AcGePoint3d& start, const AcGePoint3d& end, double startDiameter, double endDiameter,
                 bool capped = false);
    // A flange of the standard size of `dn` and `pn` whose face is at `face`, facing `normal`; a
    // thickness of 0 takes the standard one. Returns the thickness used.
    double AddFlange(const AcGePoint3d& face, const AcGeVector3d& normal, double dn, double pn,
                     double thickness = 0.0, bool joint = true);
    // The flanges of a straight run along +X: one of `dn` at the origin facing -X, one of `endDn`
    // at `length` facing +X. Returns where the barrel between them starts and ends.
    std::pair<AcGePoint3d, AcGePoint3d> AddFlangedRun(double length, double dn, double endDn, double pn);
    // A bend of `angle` radians from `start` in `direction`, turning towards `towards` (square
    // to `direction`). Returns the point where it ends.
    AcGePoint3d AddBend(const AcGePoint3d& start, const AcGeVector3d& direction, const AcGeVector3d& towards,
                        double radius, double angle, double diameter);

    const std::vector<CTubePart>& GetTubes() const { return m_tubes; }
    const std::vector<CFlangePart>& GetFlanges() const { return m_flanges; }
    const std::vector<CBendPart>& GetBends() const { return m_bends; }

private:
    std::vector<CTubePart> m_tubes;
    std::vector<CFlangePart> m_flanges;
    std::vector<CBendPart> m_bends;
};

}  // namespace XimoGis::AssemblySchemes::Fittings
