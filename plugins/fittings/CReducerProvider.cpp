#include "fittings/CReducerProvider.h"

#include "fittings/CFittingDimensions.h"

namespace XimoGis::AssemblySchemes::Fittings {

const wchar_t* const CReducerProvider::kProviderId = L"FITTING_REDUCER";

CReducerProvider::CReducerProvider()
    : CFittingProvider(kProviderId, eAssemblyElementFitting, L"Double flanged reducer") {}

bool CReducerProvider::CheckData(const CFittingData& data, std::wstring& problem) const {
    return Require(data.outletDn > 0.0 && data.outletDn < data.dn,
                   L"AS_CATALOGNUM names no outlet smaller than AS_NOMINALDIAMETER", problem) &&
           RequireRoomForFlanges(data, data.outletDn, problem);
}

void CReducerProvider::BuildModel(const CFittingData& data, CFittingModel& model) const {
    const auto [start, end] = model.AddFlangedRun(data.length, data.dn, data.outletDn, data.pn);
    model.AddTube(start, end, CFittingDimensions::GetPipeDiameter(data.dn),
                  CFittingDimensions::GetPipeDiameter(data.outletDn));
}

CFittingData CReducerProvider::GetTypicalData() const { return {100.0, 16.0, 200.0, 0.0, 80.0}; }

}  // namespace XimoGis::AssemblySchemes::Fittings
