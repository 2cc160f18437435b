#pragma once
// Blind flange ("FITTING_FLANGE"): a disc whose face closes a connection. "AS_LENGTH", when given,
// is its thickness; otherwise the standard flange thickness of the DN is drawn.

#include "fittings/CFittingProvider.h"

namespace XimoGis::AssemblySchemes::Fittings {

class CFlangeProvider : public CFittingProvider {
public:
    static const wchar_t* const kProviderId;  // "FITTING_FLANGE"

    CFlangeProvider();

protected:
    bool CheckData(const CFittingData& data, std::wstring& problem) const override;
    void BuildModel(const CFittingData& data, CFittingModel& model) const override;
    CFittingData GetTypicalData() const override;
};

}  // namespace XimoGis::AssemblySchemes::Fittings
