#pragma once
// Double flanged reducer ("FITTING_REDUCER"): a cone from the DN down to the outlet DN named in the
// catalog number, "AS_LENGTH" face to face.

#include "fittings/CFittingProvider.h"

namespace XimoGis::AssemblySchemes::Fittings {

class CReducerProvider : public CFittingProvider {
public:
    static const wchar_t* const kProviderId;  // "FITTING_REDUCER"

    CReducerProvider();

protected:
    bool CheckData(const CFittingData& data, std::wstring& problem) const override;
    void BuildModel(const CFittingData& data, CFittingModel& model) const override;
    CFittingData GetTypicalData() const override;
};

}  // namespace XimoGis::AssemblySchemes::Fittings
