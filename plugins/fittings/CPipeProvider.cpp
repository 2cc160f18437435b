#include "fittings/CPipeProvider.h"

#include "fittings/CFittingDimensions.h"

namespace XimoGis::AssemblySchemes::Fittings {

const wchar_t* const CPipeProvider::kProviderId = L"FITTING_PIPE";

CPipeProvider::CPipeProvider() : CFittingProvider(kProviderId, eAssemblyElementFitting, L"Double flanged pipe piece") {}

bool CPipeProvider::CheckData(const CFittingData& data, std::wstring& problem) const {
    return Require(data.length > 2.0 * CFittingDimensions::GetFlangeThickness(data.dn),
                   L"AS_LENGTH is not longer than the two flanges", problem);
}

void CPipeProvider::BuildModel(const CFittingData& data, CFittingModel& model) const {
    const AcGePoint3d end(data.length, 0.0, 0.0);
    const double first = model.AddFlange(AcGePoint3d::kOrigin, -AcGeVector3d::kXAxis, data.dn, data.pn);
    const double last = model.AddFlange(end, AcGeVector3d::kXAxis, data.dn, data.pn);
    const double diameter = CFittingDimensions::GetPipeDiameter(data.dn);
    model.AddTube({first, 0.0, 0.0}, end - AcGeVector3d::kXAxis * last, diameter, diameter);
}

CFittingData CPipeProvider::GetTypicalData() const { return {100.0, 16.0, 500.0}; }

}  // namespace XimoGis::AssemblySchemes::Fittings
