#include "fittings/CPipeProvider.h"

#include "fittings/CFittingDimensions.h"

namespace XimoGis::AssemblySchemes::Fittings {

const wchar_t* const CPipeProvider::kProviderId = L"FITTING_PIPE";

CPipeProvider::CPipeProvider() : CFittingProvider(kProviderId, eAssemblyElementFitting, L"Double flanged pipe piece") {}

bool CPipeProvider::CheckData(const CFittingData& data, std::wstring& problem) const {
    return RequireRoomForFlanges(data, data.dn, problem);
}

void CPipeProvider::BuildModel(const CFittingData& data, CFittingModel& model) const {
    const auto [start, end] = model.AddFlangedRun(data.length, data.dn, data.dn, data.pn);
    const double diameter = CFittingDimensions::GetPipeDiameter(data.dn);
    model.AddTube(start, end, diameter, diameter);
}

CFittingData CPipeProvider::GetTypicalData() const { return {100.0, 16.0, 500.0}; }

}  // namespace XimoGis::AssemblySchemes::Fittings
