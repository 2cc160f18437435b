#pragma once
// The data of a catalog item that a fitting is drawn from, in millimetres, bar and degrees:
// "AS_NOMINALDIAMETER" (DN, required), "AS_NOMINALPRESSURE" (PN, 16 when not given), "AS_LENGTH"
// (face to face; for bends the leg from the centre to a face; for hydrants the cover depth),
// "AS_ANGLE" and the outlet diameter of tees and reducers. The catalog has no property for the
// outlet: it is the number that follows the DN in the catalog number ("T-100-080-16" is a DN 100
// tee with a DN 80 branch, PN 16), when it is not larger than the DN and a further number (the
// pressure) follows it: "T-100-16" names no outlet.

#include <string>

namespace XimoGis::Data {
class CCatalogItem;
}

namespace XimoGis::AssemblySchemes::Fittings {

struct CFittingData {
    double dn = 0.0;
    double pn = 16.0;
    double length = 0.0;    // 0 when not given
    double angle = 0.0;     // 0 when not given
    double outletDn = 0.0;  // 0 when the catalog number names none

    // Reads the item; false, with `problem` naming the property, when there is no item or its DN
    // is missing or not a positive number. Other values that are missing or not numbers stay 0.
    static bool Read(const Data::CCatalogItem* item, CFittingData& data, std::wstring& problem);
    // The outlet diameter named in a catalog number after `dn`; 0 when there is none.
    static double ReadOutletDiameter(const std::wstring& catalogNumber, double dn);
};

}  // namespace XimoGis::AssemblySchemes::Fittings
