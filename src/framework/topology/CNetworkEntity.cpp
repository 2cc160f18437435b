#include "framework/topology/CNetworkEntity.h"

namespace XimoGis::Topology {

CNetworkEntity::CNetworkEntity(enmEntityType type, int systemId, std::wstring guid, std::wstring name)
    : CEntity(type), m_systemId(systemId), m_name(std::move(name)) {
    SetGuid(guid);
}

const Data::CDataBox* CNetworkEntity::GetValue(const std::wstring& column) const {
    const auto found = m_values.find(column);
    return found == m_values.end() ? nullptr : &found->second;
}

void CNetworkEntity::SetValue(const std::wstring& column, const Data::CDataBox& value) {
    if (value.IsNull()) m_values.erase(column);
    else m_values[column] = value;
}

}  // namespace XimoGis::Topology
