#pragma once
// Double flanged bends ("FITTING_ELBOW90", "FITTING_ELBOW45"): a leg along +X, a bend turning
// towards +Y by "AS_ANGLE" (the provider's own angle when the item gives none between 0 and 180),
// and a leg in the new direction; "AS_LENGTH" is the leg from the crossing of the axes to a face.

#include "fittings/CFittingProvider.h"

namespace XimoGis::AssemblySchemes::Fittings {

class CElbowProvider : public CFittingProvider {
public:
    static const wchar_t* const kProviderId90;  // "FITTING_ELBOW90"
    static const wchar_t* const kProviderId45;  // "FITTING_ELBOW45"

    // The 90° or the 45° bend.
    explicit CElbowProvider(int degrees);

protected:
    bool CheckData(const CFittingData& data, std::wstring& problem) const override;
    void BuildModel(const CFittingData& data, CFittingModel& model) const override;
    CFittingData GetTypicalData() const override;

private:
    double GetAngle(const CFittingData& data) const;

    int m_degrees;
};

}  // namespace XimoGis::AssemblySchemes::Fittings
