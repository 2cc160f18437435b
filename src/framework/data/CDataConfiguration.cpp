#include "framework/data/CDataConfiguration.h"

#include "framework/systems/CSystemManager.h"
#include "framework/topology/CTopologyMultiStorage.h"
#include "framework/topology/CTopologyStorage.h"

namespace XimoGis::Data {

const CDataDefinition* CDataConfiguration::GetDataDefinitionByID(const std::wstring& id) {
    System::CGisSystem* system = System::CSystemManager::Instance()->GetActiveSystem();
    if (!system) return nullptr;
    const Topology::CTopologyStorage* topology = Topology::CTopologyMultiStorage::Instance()->GetTopology(system);
    return topology ? topology->GetDataConfiguration().GetDefinition(id) : nullptr;
}

bool CDataConfiguration::Add(const CDataDefinition& definition) {
    if (GetDefinition(definition.GetId())) return false;
    m_definitions.push_back(std::make_unique<CDataDefinition>(definition));
    return true;
}

const CDataDefinition* CDataConfiguration::GetDefinition(const std::wstring& id) const {
    for (const auto& definition : m_definitions) {
        if (definition->GetId() == id) return definition.get();
    }
    return nullptr;
}

const CDataDefinition* CDataConfiguration::GetDefinition(enmDataTarget target, const std::wstring& column) const {
    return GetDefinition(CDataDefinition::MakeId(target, column));
}

std::vector<const CDataDefinition*> CDataConfiguration::GetDefinitions(enmDataTarget target) const {
    std::vector<const CDataDefinition*> found;
    for (const auto& definition : m_definitions) {
        if (definition->GetTarget() == target) found.push_back(definition.get());
    }
    return found;
}

}  // namespace XimoGis::Data
