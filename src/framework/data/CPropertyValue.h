#pragma once
// One value of a property (its shown value, hidden value or one of their defaults). Values are kept
// as text, the form in which they are edited and stored, and converted when read; a value can also
// be null ("not set"), which readers tell apart from an empty text.

#include <optional>
#include <string>

namespace XimoGis::Data {

class CPropertyValue {
public:
    CPropertyValue() = default;  // null
    CPropertyValue(int value);
    CPropertyValue(long value);
    CPropertyValue(double value);
    CPropertyValue(const wchar_t* text);  // a null pointer gives a null value
    CPropertyValue(std::wstring text);

    bool IsNull() const { return !m_text.has_value(); }
    // The stored text; empty for a null value.
    const std::wstring& GetText() const;

    // Conversions report false (leaving `value` alone) for a null value or text that is not a number.
    bool ToDouble(double& value) const;
    // Integer text, or a decimal number cut towards zero ("2.7" gives 2) when it fits the type.
    bool ToLong(long& value) const;
    bool ToInt(int& value) const;

    bool operator==(const CPropertyValue&) const = default;

private:
    std::optional<std::wstring> m_text;
};

}  // namespace XimoGis::Data
