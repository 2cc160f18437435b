#pragma once
// The groups of one object of a DXF file: from its 0 group (the object's type) up to the next.
// Look-ups take the first group of a code; values are the parsed ones of DxfGroup.

#include <string_view>
#include <vector>

#include "host/base/AcadTypes.h"
#include "host/dxf/DxfGroup.h"

class DxfObject {
public:
    void clear() { m_groups.clear(); }
    void add(const DxfGroup& group) { m_groups.push_back(group); }
    bool empty() const { return m_groups.empty(); }
    const std::vector<DxfGroup>& groups() const { return m_groups; }

    // The value of the 0 group ("LINE", "SECTION"...), empty for the groups before the first.
    std::string_view type() const;
    std::uint32_t line() const { return m_groups.empty() ? 0 : m_groups.front().line; }

    const DxfGroup* find(int code) const;
    bool has(int code) const { return find(code) != nullptr; }
    std::size_t count(int code) const;
    double real(int code, double fallback = 0.0) const;
    std::int64_t integer(int code, std::int64_t fallback = 0) const;
    std::string_view string(int code, std::string_view fallback = {}) const;
    // The object's own handle (group 5, 105 for dimension styles); 0 when it has none.
    Adesk::UInt32 handle() const;

private:
    std::vector<DxfGroup> m_groups;
};
