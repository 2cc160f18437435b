#pragma once
// One typed data value: null, integer, real or text.

#include <string>
#include <variant>

namespace XimoGis::Data {

class CDataBox {
public:
    enum class Type { Null, Integer, Double, Text };

    CDataBox() = default;
    CDataBox(int value) : m_value(value) {}                       // NOLINT: values convert implicitly
    CDataBox(double value) : m_value(value) {}                    // NOLINT
    CDataBox(const std::wstring& value) : m_value(value) {}       // NOLINT
    CDataBox(const wchar_t* value) : m_value(std::wstring(value ? value : L"")) {}  // NOLINT

    Type GetType() const { return static_cast<Type>(m_value.index()); }
    bool IsNull() const { return GetType() == Type::Null; }
    bool IsNotNull() const { return !IsNull(); }
    bool IsNumeric() const { return GetType() == Type::Integer || GetType() == Type::Double; }
    void SetNull() { m_value = std::monostate(); }

    // Multiplies a numeric value (an integer becomes a real); text and null stay as they are.
    void ScaleValue(double factor);
    // The value as a real: numbers as they are, text when it is a number; false otherwise.
    bool GetDouble(double& out) const;
    bool GetInt(int& out) const;
    double AsDouble(double defaultValue = 0.0) const;
    int AsInt(int defaultValue = 0) const;
    // The value as text: integers in decimal, reals with up to 15 significant digits, null empty.
    std::wstring AsString() const;

    bool operator==(const CDataBox& other) const { return m_value == other.m_value; }
    bool operator!=(const CDataBox& other) const { return !(*this == other); }

private:
    std::variant<std::monostate, int, double, std::wstring> m_value;
};

}  // namespace XimoGis::Data
