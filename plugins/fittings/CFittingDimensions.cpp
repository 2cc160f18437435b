#include "fittings/CFittingDimensions.h"

#include <array>
#include <cstddef>

namespace XimoGis::AssemblySchemes::Fittings {

namespace {

struct Size {
    double dn;
    double pipe;      // outside diameter of the barrel
    double flange10;  // outside diameter of a PN 10 flange
    double flange16;  // outside diameter of a PN 16 flange
    double thickness;
};

constexpr std::array<Size, 16> kSizes = {{
    {40, 56, 150, 150, 19},    {50, 66, 165, 165, 19},    {60, 77, 175, 175, 19},    {65, 82, 185, 185, 19},
    {80, 98, 200, 200, 19},    {100, 118, 220, 220, 19},  {125, 144, 250, 250, 19},  {150, 170, 285, 285, 19},
    {200, 222, 340, 340, 20},  {250, 274, 395, 400, 22},  {300, 326, 445, 455, 24.5}, {350, 378, 505, 520, 24.5},
    {400, 429, 565, 580, 25.5}, {450, 480, 615, 640, 26.5}, {500, 532, 670, 715, 27.5}, {600, 635, 780, 840, 30},
}};

// The size of column `field` at `dn`, on the line through the two tabled sizes around it.
double Interpolate(double dn, double Size::*field) {
    std::size_t upper = 1;
    while (upper + 1 < kSizes.size() && kSizes[upper].dn < dn) ++upper;
    const Size& a = kSizes[upper - 1];
    const Size& b = kSizes[upper];
    return a.*field + (b.*field - a.*field) * (dn - a.dn) / (b.dn - a.dn);
}

}  // namespace

double CFittingDimensions::GetPipeDiameter(double dn) { return Interpolate(dn, &Size::pipe); }

double CFittingDimensions::GetFlangeDiameter(double dn, double pn) {
    return Interpolate(dn, pn <= 10.0 ? &Size::flange10 : &Size::flange16);
}

double CFittingDimensions::GetFlangeThickness(double dn) { return Interpolate(dn, &Size::thickness); }

}  // namespace XimoGis::AssemblySchemes::Fittings
