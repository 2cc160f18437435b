#include "fittings/CElbowProvider.h"

#include "fittings/CFittingDimensions.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace XimoGis::AssemblySchemes::Fittings {

const wchar_t* const CElbowProvider::kProviderId90 = L"FITTING_ELBOW90";
const wchar_t* const CElbowProvider::kProviderId45 = L"FITTING_ELBOW45";

CElbowProvider::CElbowProvider(int degrees)
    : CFittingProvider(degrees == 45 ? kProviderId45 : kProviderId90, eAssemblyElementFitting,
                       degrees == 45 ? L"Double flanged 45° bend" : L"Double flanged 90° bend"),
      m_degrees(degrees == 45 ? 45 : 90) {}

double CElbowProvider::GetAngle(const CFittingData& data) const {
    const double degrees = data.angle > 0.0 && data.angle < 180.0 ? data.angle : m_degrees;
    return degrees * std::numbers::pi / 180.0;
}

bool CElbowProvider::CheckData(const CFittingData& data, std::wstring& problem) const {
    return Require(data.length > CFittingDimensions::GetFlangeThickness(data.dn),
                   L"AS_LENGTH is not longer than a flange", problem);
}

void CElbowProvider::BuildModel(const CFittingData& data, CFittingModel& model) const {
    const AcGeVector3d x = AcGeVector3d::kXAxis;
    const double angle = GetAngle(data);
    const AcGeVector3d out(std::cos(angle), std::sin(angle), 0.0);
    const AcGePoint3d corner(data.length, 0.0, 0.0);
    const double diameter = CFittingDimensions::GetPipeDiameter(data.dn);
    const double thickness = model.AddFlange(AcGePoint3d::kOrigin, -x, data.dn, data.pn);
    model.AddFlange(corner + out * data.length, out, data.dn, data.pn);

    // As tight as a short fitting: the axis' radius is the barrel's diameter, less when the legs
    // leave no room for it behind the flanges.
    const double room = data.length - thickness;
    const double halfTangent = std::tan(angle / 2.0);
    const double radius = std::min(diameter, room / halfTangent);
    const double tangent = radius * halfTangent;
    if (room - tangent > 1e-6) {
        model.AddTube(AcGePoint3d::kOrigin + x * thickness, corner - x * tangent, diameter, diameter);
        model.AddTube(corner + out * tangent, corner + out * room, diameter, diameter);
    }
    model.AddBend(corner - x * tangent, x, AcGeVector3d::kYAxis, radius, angle, diameter);
}

CFittingData CElbowProvider::GetTypicalData() const {
    return {100.0, 16.0, m_degrees == 45 ? 140.0 : 180.0, static_cast<double>(m_degrees)};
}

}  // namespace XimoGis::AssemblySchemes::Fittings
