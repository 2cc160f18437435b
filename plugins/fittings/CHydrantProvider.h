#pragma once
// Hydrant ("FITTING_HYDRANT"): a flanged inlet turning up in a bend into the riser, whose head with
// the operating nut stands "AS_LENGTH" (the cover depth) above the inlet's axis.

#include "fittings/CFittingProvider.h"

namespace XimoGis::AssemblySchemes::Fittings {

class CHydrantProvider : public CFittingProvider {
public:
    static const wchar_t* const kProviderId;  // "FITTING_HYDRANT"

    CHydrantProvider();

protected:
    bool CheckData(const CFittingData& data, std::wstring& problem) const override;
    void BuildModel(const CFittingData& data, CFittingModel& model) const override;
    CFittingData GetTypicalData() const override;
};

}  // namespace XimoGis::AssemblySchemes::Fittings
