#include "host/dxf/DxfObject.h"

#include <algorithm>

std::string_view DxfObject::type() const {
    return !m_groups.empty() && m_groups.front().code == 0 ? m_groups.front().value : std::string_view();
}

const DxfGroup* DxfObject::find(int code) const {
    for (const DxfGroup& g : m_groups)
        if (g.code == code) return &g;
    return nullptr;
}

std::size_t DxfObject::count(int code) const {
    return static_cast<std::size_t>(
        std::count_if(m_groups.begin(), m_groups.end(), [code](const DxfGroup& g) { return g.code == code; }));
}

double DxfObject::real(int code, double fallback) const {
    const DxfGroup* g = find(code);
    return g ? g->real : fallback;
}

std::int64_t DxfObject::integer(int code, std::int64_t fallback) const {
    const DxfGroup* g = find(code);
    return g ? g->integer : fallback;
}

std::string_view DxfObject::string(int code, std::string_view fallback) const {
    const DxfGroup* g = find(code);
    return g ? g->value : fallback;
}

Adesk::UInt32 DxfObject::handle() const {
    const DxfGroup* g = find(5);
    if (!g) g = find(105);
    // Handles beyond 32 bits do not fit the database's: such objects take new ones.
    return g && g->integer <= 0xFFFFFFFF ? static_cast<Adesk::UInt32>(g->integer) : 0;
}
