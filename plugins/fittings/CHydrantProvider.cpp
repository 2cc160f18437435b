#include "fittings/CHydrantProvider.h"

#include "fittings/CFittingDimensions.h"

#include <numbers>

namespace XimoGis::AssemblySchemes::Fittings {

namespace {

// Sizes of the hydrant's parts in barrel diameters.
constexpr double kLegLength = 0.3;    // straight inlet between the flange and the bend
constexpr double kHeadHeight = 1.5;
constexpr double kHeadDiameter = 1.6;
constexpr double kNutHeight = 0.3;
constexpr double kNutDiameter = 0.45;

}  // namespace

const wchar_t* const CHydrantProvider::kProviderId = L"FITTING_HYDRANT";

CHydrantProvider::CHydrantProvider() : CFittingProvider(kProviderId, eAssemblyElementHydrant, L"Hydrant") {}

bool CHydrantProvider::CheckData(const CFittingData& data, std::wstring& problem) const {
    const double diameter = CFittingDimensions::GetPipeDiameter(data.dn);
    return Require(data.length > (1.0 + kHeadHeight) * diameter,
                   L"AS_LENGTH (the cover depth) leaves no room for the bend and the head", problem);
}

void CHydrantProvider::BuildModel(const CFittingData& data, CFittingModel& model) const {
    const AcGeVector3d x = AcGeVector3d::kXAxis;
    const AcGeVector3d z = AcGeVector3d::kZAxis;
    const double diameter = CFittingDimensions::GetPipeDiameter(data.dn);
    const double thickness = model.AddFlange(AcGePoint3d::kOrigin, -x, data.dn, data.pn);
    const AcGePoint3d bendStart(thickness + kLegLength * diameter, 0.0, 0.0);
    model.AddTube(AcGePoint3d::kOrigin + x * thickness, bendStart, diameter, diameter);
    // A bend of the barrel's diameter as radius turns the inlet up into the riser.
    const AcGePoint3d riserFoot = model.AddBend(bendStart, x, z, diameter, std::numbers::pi / 2.0, diameter);
    const AcGePoint3d riserAxis(riserFoot.x, 0.0, 0.0);
    const AcGePoint3d head = riserAxis + z * (data.length - kHeadHeight * diameter);
    const AcGePoint3d top = riserAxis + z * data.length;
    model.AddTube(riserFoot, head, diameter, diameter);
    model.AddTube(head, top, kHeadDiameter * diameter, kHeadDiameter * diameter, true);
    model.AddTube(top, top + z * (kNutHeight * diameter), kNutDiameter * diameter, kNutDiameter * diameter, true);
}

CFittingData CHydrantProvider::GetTypicalData() const { return {80.0, 16.0, 1250.0}; }

}  // namespace XimoGis::AssemblySchemes::Fittings
