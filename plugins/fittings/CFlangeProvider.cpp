#include "fittings/CFlangeProvider.h"

namespace XimoGis::AssemblySchemes::Fittings {

const wchar_t* const CFlangeProvider::kProviderId = L"FITTING_FLANGE";

CFlangeProvider::CFlangeProvider() : CFittingProvider(kProviderId, eAssemblyElementFitting, L"Blind flange") {}

bool CFlangeProvider::CheckData(const CFittingData&, std::wstring&) const { return true; }

void CFlangeProvider::BuildModel(const CFittingData& data, CFittingModel& model) const {
    model.AddFlange(AcGePoint3d::kOrigin, -AcGeVector3d::kXAxis, data.dn, data.pn, data.length);
}

CFittingData CFlangeProvider::GetTypicalData() const { return {100.0, 16.0, 19.0}; }

}  // namespace XimoGis::AssemblySchemes::Fittings
