#include "framework/systems/CGisSystems.h"

#include <algorithm>

namespace XimoGis::System {

CGisSystems::SystemList::const_iterator CGisSystems::Find(int systemId) const {
    return std::find_if(m_systems.begin(), m_systems.end(),
                        [systemId](const auto& system) { return system && system->GetSystemId() == systemId; });
}

CGisSystem* CGisSystems::GetSystemById(int systemId) const {
    const auto found = Find(systemId);
    return found == m_systems.end() ? nullptr : found->get();
}

bool CGisSystems::Add(const boost::shared_ptr<CGisSystem>& system) {
    if (!system || GetSystemById(system->GetSystemId())) return false;
    m_systems.push_back(system);
    return true;
}

boost::shared_ptr<CGisSystem> CGisSystems::Remove(int systemId) {
    const auto found = Find(systemId);
    if (found == m_systems.end()) return {};
    boost::shared_ptr<CGisSystem> removed = *found;
    m_systems.erase(found);
    return removed;
}

}  // namespace XimoGis::System
