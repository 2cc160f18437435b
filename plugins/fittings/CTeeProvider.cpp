#include "fittings/CTeeProvider.h"

#include "fittings/CFittingDimensions.h"

#include <algorithm>

namespace XimoGis::AssemblySchemes::Fittings {

const wchar_t* const CTeeProvider::kProviderId = L"FITTING_TEE";

CTeeProvider::CTeeProvider() : CFittingProvider(kProviderId, eAssemblyElementFitting, L"All-flanged tee") {}

bool CTeeProvider::CheckData(const CFittingData& data, std::wstring& problem) const {
    const double outlet = data.outletDn > 0.0 ? data.outletDn : data.dn;
    return Require(data.length > 2.0 * CFittingDimensions::GetFlangeThickness(data.dn) +
                                     CFittingDimensions::GetPipeDiameter(outlet),
                   L"AS_LENGTH is too short for the flanges and the branch", problem);
}

void CTeeProvider::BuildModel(const CFittingData& data, CFittingModel& model) const {
    const AcGeVector3d y = AcGeVector3d::kYAxis;
    const double outlet = data.outletDn > 0.0 ? data.outletDn : data.dn;
    const double run = CFittingDimensions::GetPipeDiameter(data.dn);
    const double branch = CFittingDimensions::GetPipeDiameter(outlet);
    const auto [start, end] = model.AddFlangedRun(data.length, data.dn, data.dn, data.pn);
    model.AddTube(start, end, run, run);

    // The branch starts where it meets the run's outline and is at least a quarter of its own
    // diameter long between the run and its flange.
    const double thickness = CFittingDimensions::GetFlangeThickness(outlet);
    const double reach = std::max(data.length / 2.0, run / 2.0 + thickness + branch / 4.0);
    const AcGePoint3d middle(data.length / 2.0, 0.0, 0.0);
    model.AddFlange(middle + y * reach, y, outlet, data.pn);
    model.AddTube(middle + y * (run / 2.0), middle + y * (reach - thickness), branch, branch);
}

CFittingData CTeeProvider::GetTypicalData() const { return {100.0, 16.0, 360.0, 90.0, 80.0}; }

}  // namespace XimoGis::AssemblySchemes::Fittings
