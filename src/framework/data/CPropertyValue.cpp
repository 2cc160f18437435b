#include "framework/data/CPropertyValue.h"

#include "framework/data/CNumberText.h"

#include <cmath>
#include <limits>

namespace XimoGis::Data {

CPropertyValue::CPropertyValue(int value) : m_text(std::to_wstring(value)) {}

CPropertyValue::CPropertyValue(long value) : m_text(std::to_wstring(value)) {}

CPropertyValue::CPropertyValue(double value) : m_text(CNumberText::FormatDouble(value)) {}

CPropertyValue::CPropertyValue(const wchar_t* text) {
    if (text) m_text = text;
}

CPropertyValue::CPropertyValue(std::wstring text) : m_text(std::move(text)) {}

const std::wstring& CPropertyValue::GetText() const {
    static const std::wstring empty;
    return m_text ? *m_text : empty;
}

bool CPropertyValue::ToDouble(double& value) const {
    return m_text && CNumberText::ParseDouble(*m_text, value);
}

bool CPropertyValue::ToLong(long& value) const {
    if (!m_text) return false;
    if (CNumberText::ParseLong(*m_text, value)) return true;
    double number = 0.0;
    if (!CNumberText::ParseDouble(*m_text, number) || !std::isfinite(number)) return false;
    const double whole = std::trunc(number);
    // Bounds as doubles: the upper one is exactly 2^63, just past the largest long.
    if (whole < static_cast<double>(std::numeric_limits<long>::min()) ||
        whole >= -static_cast<double>(std::numeric_limits<long>::min()))
        return false;
    value = static_cast<long>(whole);
    return true;
}

bool CPropertyValue::ToInt(int& value) const {
    long wide = 0;
    if (!ToLong(wide) || wide < std::numeric_limits<int>::min() || wide > std::numeric_limits<int>::max())
        return false;
    value = static_cast<int>(wide);
    return true;
}

}  // namespace XimoGis::Data
