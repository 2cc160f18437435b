#include "fittings/CReducerProvider.h"

#include "fittings/CFittingDimensions.h"

namespace XimoGis::AssemblySchemes::Fittings {

const wchar_t* const CReducerProvider::kProviderId = L"FITTING_REDUCER";

CReducerProvider::CReducerProvider()
    : CFittingProvider(kProviderId, eAssemblyElementFitting, L"Double flanged reducer") {}

bool CReducerProvider::CheckData(const CFittingData& data, std::wstring& problem) const {
    return Require(data.outletDn > 0.0 && data.outletDn < data.dn,
                   L"AS_CATALOGNUM names no outlet smaller than AS_NOMINALDIAMETER", problem) &&
           Require(data.length > CFittingDimensions::GetFlangeThickness(data.dn) +
                                     CFittingDimensions::GetFlangeThickness(data.outletDn),
                   L"AS_LENGTH is not longer than the two flanges", problem);
}

void CReducerProvider::BuildModel(const CFittingData& data, CFittingModel& model) const {
    const AcGeVector3d x = AcGeVector3d::kXAxis;
    const AcGePoint3d end(data.length, 0.0, 0.0);
    const double first = model.AddFlange(AcGePoint3d::kOrigin, -x, data.dn, data.pn);
    const double last = model.AddFlange(end, x, data.outletDn, data.pn);
    model.AddTube(AcGePoint3d::kOrigin + x * first, end - x * last, CFittingDimensions::GetPipeDiameter(data.dn),
                  CFittingDimensions::GetPipeDiameter(data.outletDn));
}

CFittingData CReducerProvider::GetTypicalData() const { return {100.0, 16.0, 200.0, 0.0, 80.0}; }

}  // namespace XimoGis::AssemblySchemes::Fittings
