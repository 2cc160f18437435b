#include "framework/data/CDataBox.h"

#include <cmath>
#include <cstdio>
#include <cwchar>

namespace XimoGis::Data {

void CDataBox::ScaleValue(double factor) {
    if (const auto* i = std::get_if<int>(&m_value)) m_value = *i * factor;
    else if (auto* d = std::get_if<double>(&m_value)) *d *= factor;
}

bool CDataBox::GetDouble(double& out) const {
    if (const auto* i = std::get_if<int>(&m_value)) { out = *i; return true; }
    if (const auto* d = std::get_if<double>(&m_value)) { out = *d; return true; }
    if (const auto* s = std::get_if<std::wstring>(&m_value)) {
        wchar_t* end = nullptr;
        const double v = std::wcstod(s->c_str(), &end);
        if (end == s->c_str()) return false;
        while (*end == L' ') ++end;
        if (*end != L'\0') return false;
        out = v;
        return true;
    }
    return false;
}

bool CDataBox::GetInt(int& out) const {
    if (const auto* i = std::get_if<int>(&m_value)) { out = *i; return true; }
    double d = 0.0;
    if (!GetDouble(d) || !std::isfinite(d)) return false;
    out = static_cast<int>(std::lround(d));
    return true;
}

double CDataBox::AsDouble(double defaultValue) const {
    double d = defaultValue;
    return GetDouble(d) ? d : defaultValue;
}

int CDataBox::AsInt(int defaultValue) const {
    int i = defaultValue;
    return GetInt(i) ? i : defaultValue;
}

std::wstring CDataBox::AsString() const {
    if (const auto* i = std::get_if<int>(&m_value)) return std::to_wstring(*i);
    if (const auto* d = std::get_if<double>(&m_value)) {
        wchar_t text[64];
        std::swprintf(text, 64, L"%.15g", *d);
        return text;
    }
    if (const auto* s = std::get_if<std::wstring>(&m_value)) return *s;
    return L"";
}

}  // namespace XimoGis::Data
