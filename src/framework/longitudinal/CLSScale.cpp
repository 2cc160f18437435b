#include "framework/longitudinal/CLSScale.h"

#include "framework/data/CNumberText.h"

#include <cmath>
#include <string_view>

namespace XimoGis::Longitudinal {

using Data::CNumberText;

CLSScale::CLSScale(double x, double y, int targetUnit) : m_x(x), m_y(y), m_targetUnit(targetUnit) {}

std::wstring CLSScale::Serialize() const {
    return CNumberText::FormatDouble(m_x) + L";" + CNumberText::FormatDouble(m_y) + L";" +
           std::to_wstring(m_targetUnit);
}

bool CLSScale::Deserialize(const wchar_t* text) {
    if (!text) return false;
    std::wstring_view rest(text);
    const auto first = rest.find(L';');
    const auto second = first == std::wstring_view::npos ? first : rest.find(L';', first + 1);
    if (second == std::wstring_view::npos || rest.find(L';', second + 1) != std::wstring_view::npos) return false;
    double x = 0.0, y = 0.0;
    int unit = 0;
    if (!CNumberText::ParseDouble(rest.substr(0, first), x) ||
        !CNumberText::ParseDouble(rest.substr(first + 1, second - first - 1), y) ||
        !CNumberText::ParseInt(rest.substr(second + 1), unit) || !std::isfinite(x) || !std::isfinite(y))
        return false;
    *this = CLSScale(x, y, unit);
    return true;
}

}  // namespace XimoGis::Longitudinal
