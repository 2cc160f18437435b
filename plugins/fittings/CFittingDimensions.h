#pragma once
// Standard sizes of flanged ductile-iron fittings by nominal diameter (DN, mm) and nominal
// pressure (PN, bar): the outside diameter of the barrel and the outside diameter and thickness of
// the flange, as tabled for DN 40 to 600 (flanges PN 10 and PN 16; higher pressures use the PN 16
// sizes). Between tabled diameters the sizes are interpolated, beyond them extrapolated from the
// nearest two.

namespace XimoGis::AssemblySchemes::Fittings {

class CFittingDimensions {
public:
    static double GetPipeDiameter(double dn);
    static double GetFlangeDiameter(double dn, double pn);
    static double GetFlangeThickness(double dn);
};

}  // namespace XimoGis::AssemblySchemes::Fittings
