#include "framework/data/CDataDefinition.h"

#include <cmath>
#include <limits>

namespace XimoGis::Data {

CDataDefinition::CDataDefinition(enmDataTarget target, std::wstring column, CDataBox::Type type, std::wstring name,
                                 std::wstring unit)
    : m_target(target),
      m_column(std::move(column)),
      m_type(type == CDataBox::Type::Null ? CDataBox::Type::Text : type),
      m_name(std::move(name)),
      m_unit(std::move(unit)),
      m_id(MakeId(target, m_column)) {}

std::wstring CDataDefinition::MakeId(enmDataTarget target, const std::wstring& column) {
    return std::wstring(GetLayerWord(target)) + L"." + column;
}

const wchar_t* CDataDefinition::GetLayerWord(enmDataTarget target) {
    return target == enmDataTarget::Node ? L"nodes" : L"sections";
}

bool CDataDefinition::IsValidColumnName(const std::wstring& column) {
    if (column.empty() || column.size() > 63 || (column[0] >= L'0' && column[0] <= L'9')) return false;
    for (wchar_t c : column) {
        const bool ok = (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9') || c == L'_';
        if (!ok) return false;
    }
    return true;
}

bool CDataDefinition::Coerce(CDataBox& value) const {
    if (value.IsNull()) return true;
    switch (m_type) {
        case CDataBox::Type::Text:
            if (value.GetType() != CDataBox::Type::Text) value = CDataBox(value.AsString());
            return true;
        case CDataBox::Type::Double: {
            if (!value.IsNumeric()) return false;
            value = CDataBox(value.AsDouble());
            return true;
        }
        case CDataBox::Type::Integer: {
            double number = 0.0;
            if (!value.IsNumeric() || !value.GetDouble(number) || number != std::floor(number) ||
                std::fabs(number) > std::numeric_limits<int>::max())
                return false;
            value = CDataBox(static_cast<int>(number));
            return true;
        }
        case CDataBox::Type::Null: break;
    }
    return false;
}

}  // namespace XimoGis::Data
