#pragma once
// The data definitions of one network system: one per data column of its node and section
// layers, in column order, nodes first. A system's configuration belongs to its topology storage
// (Topology::CTopologyStorage), which loads both from the workspace store.

#include "framework/data/CDataDefinition.h"

#include <memory>
#include <string>
#include <vector>

namespace XimoGis::Data {

class CDataConfiguration {
public:
    CDataConfiguration() = default;
    CDataConfiguration(const CDataConfiguration&) = delete;
    CDataConfiguration& operator=(const CDataConfiguration&) = delete;

    // The definition with this id in the active system's configuration; null when no system is
    // active, its network cannot be read, or it has no such data. The pointer is valid until the
    // system's network is read again (see Topology::CTopologyMultiStorage).
    static const CDataDefinition* GetDataDefinitionByID(const std::wstring& id);

    // Adds a definition; false (nothing added) when its id is there already.
    bool Add(const CDataDefinition& definition);
    void Clear() { m_definitions.clear(); }

    const CDataDefinition* GetDefinition(const std::wstring& id) const;
    const CDataDefinition* GetDefinition(enmDataTarget target, const std::wstring& column) const;
    // The definitions of nodes or sections, in column order. Pointers live as long as this.
    std::vector<const CDataDefinition*> GetDefinitions(enmDataTarget target) const;
    std::size_t GetCount() const { return m_definitions.size(); }

private:
    std::vector<std::unique_ptr<CDataDefinition>> m_definitions;
};

}  // namespace XimoGis::Data
