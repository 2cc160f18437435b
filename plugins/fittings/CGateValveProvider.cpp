#include "fittings/CGateValveProvider.h"

#include "fittings/CFittingDimensions.h"

#include <algorithm>

namespace XimoGis::AssemblySchemes::Fittings {

const wchar_t* const CGateValveProvider::kProviderId = L"FITTING_GATEVALVE";

CGateValveProvider::CGateValveProvider()
    : CFittingProvider(kProviderId, eAssemblyElementValve, L"Flanged gate valve") {}

bool CGateValveProvider::CheckData(const CFittingData& data, std::wstring& problem) const {
    return RequireRoomForFlanges(data, data.dn, problem);
}

void CGateValveProvider::BuildModel(const CFittingData& data, CFittingModel& model) const {
    const AcGeVector3d z = AcGeVector3d::kZAxis;
    const AcGePoint3d middle(data.length / 2.0, 0.0, 0.0);
    const auto [start, end] = model.AddFlangedRun(data.length, data.dn, data.dn, data.pn);
    // The valve symbol: two cones as wide as most of the flange, tip to tip in the middle.
    const double body = 0.8 * CFittingDimensions::GetFlangeDiameter(data.dn, data.pn);
    model.AddTube(start, middle, body, 0.0);
    model.AddTube(middle, end, 0.0, body);
    // The spindle rises as high as the body is wide; the handwheel is three quarters of that.
    const double spindle = std::max(0.1 * body, 8.0);
    const AcGePoint3d top = middle + z * body;
    model.AddTube(middle, top, spindle, spindle);
    model.AddTube(top, top + z * spindle, 0.75 * body, 0.75 * body, true);
}

CFittingData CGateValveProvider::GetTypicalData() const { return {100.0, 16.0, 190.0}; }

}  // namespace XimoGis::AssemblySchemes::Fittings
