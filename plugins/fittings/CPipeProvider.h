#pragma once
// Double flanged pipe piece ("FITTING_PIPE"): a barrel between two flanges, "AS_LENGTH" face to face.

#include "fittings/CFittingProvider.h"

namespace XimoGis::AssemblySchemes::Fittings {

class CPipeProvider : public CFittingProvider {
public:
    static const wchar_t* const kProviderId;  // "FITTING_PIPE"

    CPipeProvider();

protected:
    bool CheckData(const CFittingData& data, std::wstring& problem) const override;
    void BuildModel(const CFittingData& data, CFittingModel& model) const override;
    CFittingData GetTypicalData() const override;
};

}  // namespace XimoGis::AssemblySchemes::Fittings
