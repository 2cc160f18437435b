#include "module/instances/CASInstanceStorage.h"

namespace XimoGis::AssemblySchemes {

void CASInstanceStorage::AddASInstance(const boost::shared_ptr<CASInstance>& instance) {
    if (instance) m_instances[instance->GetGuid()] = instance;
}

void CASInstanceStorage::DeleteASInstance(const boost::shared_ptr<CASInstance>& instance) {
    if (instance) m_instances.erase(instance->GetGuid());
}

boost::shared_ptr<CASInstance> CASInstanceStorage::GetASInstanceById(const wchar_t* id) const {
    if (!id) return {};
    const auto found = m_instances.find(id);
    return found == m_instances.end() ? boost::shared_ptr<CASInstance>() : found->second;
}

}  // namespace XimoGis::AssemblySchemes
