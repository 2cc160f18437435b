#pragma once
// Flanged gate valve ("FITTING_GATEVALVE"): the valve symbol of two cones meeting at the middle
// between the flanges, "AS_LENGTH" face to face, with the spindle and its handwheel above.

#include "fittings/CFittingProvider.h"

namespace XimoGis::AssemblySchemes::Fittings {

class CGateValveProvider : public CFittingProvider {
public:
    static const wchar_t* const kProviderId;  // "FITTING_GATEVALVE"

    CGateValveProvider();

protected:
    bool CheckData(const CFittingData& data, std::wstring& problem) const override;
    void BuildModel(const CFittingData& data, CFittingModel& model) const override;
    CFittingData GetTypicalData() const override;
};

}  // namespace XimoGis::AssemblySchemes::Fittings
