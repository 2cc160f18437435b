#include "fittings/CFittingModel.h"

#include "fittings/CFittingDimensions.h"

#include <cmath>

namespace XimoGis::AssemblySchemes::Fittings {

void CFittingModel::AddTube(const AcGePoint3d& start, const AcGePoint3d& end, double startDiameter,
                            double endDiameter, bool capped) {
    m_tubes.push_back({start, end, startDiameter, endDiameter, capped});
}

double CFittingModel::AddFlange(const AcGePoint3d& face, const AcGeVector3d& normal, double dn, double pn,
                                double thickness, bool joint) {
    CFlangePart flange;
    flange.face = face;
    flange.normal = normal.normal();
    flange.diameter = CFittingDimensions::GetFlangeDiameter(dn, pn);
    flange.thickness = thickness > 0.0 ? thickness : CFittingDimensions::GetFlangeThickness(dn);
    flange.joint = joint;
    flange.dn = dn;
    flange.pn = pn;
    m_flanges.push_back(flange);
    return flange.thickness;
}

std::pair<AcGePoint3d, AcGePoint3d> CFittingModel::AddFlangedRun(double length, double dn, double endDn, double pn) {
    const AcGeVector3d x = AcGeVector3d::kXAxis;
    const AcGePoint3d end = AcGePoint3d::kOrigin + x * length;
    const double first = AddFlange(AcGePoint3d::kOrigin, -x, dn, pn);
    const double last = AddFlange(end, x, endDn, pn);
    return {AcGePoint3d::kOrigin + x * first, end - x * last};
}

AcGePoint3d CFittingModel::AddBend(const AcGePoint3d& start, const AcGeVector3d& direction,
                                   const AcGeVector3d& towards, double radius, double angle, double diameter) {
    CBendPart bend;
    bend.direction = direction.normal();
    bend.radial = -towards.normal();
    bend.centre = start - bend.radial * radius;
    bend.radius = radius;
    bend.angle = angle;
    bend.diameter = diameter;
    m_bends.push_back(bend);
    return bend.centre + (bend.radial * std::cos(angle) + bend.direction * std::sin(angle)) * radius;
}

}  // namespace XimoGis::AssemblySchemes::Fittings
