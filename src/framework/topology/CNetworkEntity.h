#pragma once
// What network nodes and sections share: the system they belong to, a name, and their data
// values by column of their layer (read through Data::CDataRW::Read).

#include "framework/data/CDataBox.h"
#include "framework/topology/CEntity.h"

#include <map>
#include <string>

namespace XimoGis::Topology {

class CNetworkEntity : public CEntity {
public:
    CNetworkEntity(enmEntityType type, int systemId, std::wstring guid, std::wstring name);

    int GetSystemId() const { return m_systemId; }
    const std::wstring& GetName() const { return m_name; }
    void SetName(const std::wstring& name) { m_name = name; }

    // The value of a data column; null when the entity has none (a null value or no such column).
    const Data::CDataBox* GetValue(const std::wstring& column) const;
    // A null value removes the column's value.
    void SetValue(const std::wstring& column, const Data::CDataBox& value);
    const std::map<std::wstring, Data::CDataBox>& GetValues() const { return m_values; }

private:
    int m_systemId;
    std::wstring m_name;
    std::map<std::wstring, Data::CDataBox> m_values;
};

}  // namespace XimoGis::Topology
