#pragma once
// One kind of data that network nodes or sections carry: a column of the system's node or section
// layer in the workspace store, with the name people read and its unit.
//
// Ids are "<layer>.<column>", the layer being "nodes" or "sections": "nodes.pressure",
// "sections.diameter". They are what scheme definitions store to name the data they show.

#include "framework/data/CDataBox.h"

#include <string>

namespace XimoGis::Data {

enum class enmDataTarget { Node, Section };

class CDataDefinition {
public:
    // A null type is taken as text. An empty name shows the column.
    CDataDefinition(enmDataTarget target, std::wstring column, CDataBox::Type type, std::wstring name = std::wstring(),
                    std::wstring unit = std::wstring());

    static std::wstring MakeId(enmDataTarget target, const std::wstring& column);
    // "nodes" or "sections".
    static const wchar_t* GetLayerWord(enmDataTarget target);
    // Letters, digits and '_', not starting with a digit, at most 63 characters: safe as an SQL
    // column and in every GIS program.
    static bool IsValidColumnName(const std::wstring& column);

    const std::wstring& GetId() const { return m_id; }
    const std::wstring& GetName() const { return m_name.empty() ? m_column : m_name; }
    void SetName(const std::wstring& name) { m_name = name; }
    const std::wstring& GetColumn() const { return m_column; }
    enmDataTarget GetTarget() const { return m_target; }
    CDataBox::Type GetValueType() const { return m_type; }
    bool IsNumeric() const { return m_type == CDataBox::Type::Integer || m_type == CDataBox::Type::Double; }
    const std::wstring& GetUnit() const { return m_unit; }
    void SetUnit(const std::wstring& unit) { m_unit = unit; }

    // Brings a value to this definition's type: an integer column takes whole numbers, a real
    // column any number, a text column anything (numbers as their text). Null stays null. False,
    // leaving the value alone, when it does not fit.
    bool Coerce(CDataBox& value) const;

private:
    enmDataTarget m_target;
    std::wstring m_column;
    CDataBox::Type m_type;
    std::wstring m_name;
    std::wstring m_unit;
    std::wstring m_id;
};

}  // namespace XimoGis::Data
