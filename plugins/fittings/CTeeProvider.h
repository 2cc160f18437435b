#pragma once
// All-flanged tee ("FITTING_TEE"): a run of "AS_LENGTH" face to face along +X and a branch along +Y
// from its middle, of the outlet DN named in the catalog number (the run's DN when none is), its
// face half the run's length from the run's axis.

#include "fittings/CFittingProvider.h"

namespace XimoGis::AssemblySchemes::Fittings {

class CTeeProvider : public CFittingProvider {
public:
    static const wchar_t* const kProviderId;  // "FITTING_TEE"

    CTeeProvider();

protected:
    bool CheckData(const CFittingData& data, std::wstring& problem) const override;
    void BuildModel(const CFittingData& data, CFittingModel& model) const override;
    CFittingData GetTypicalData() const override;
};

}  // namespace XimoGis::AssemblySchemes::Fittings
