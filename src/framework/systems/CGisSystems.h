#pragma once
// The systems loaded from the workspace, in the order they were created.

#include "framework/systems/CGisSystem.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <list>

namespace XimoGis::System {

class CGisSystems {
public:
    using SystemList = std::list<boost::shared_ptr<CGisSystem>>;

    const SystemList& GetSystemList() const { return m_systems; }
    std::size_t GetCount() const { return m_systems.size(); }
    CGisSystem* GetSystemById(int systemId) const;

    // Adds a system whose id is not yet in the list; false for null or a taken id.
    bool Add(const boost::shared_ptr<CGisSystem>& system);
    // The removed system, so that callers can keep it alive while they finish with it.
    boost::shared_ptr<CGisSystem> Remove(int systemId);
    void Clear() { m_systems.clear(); }
    void Swap(CGisSystems& other) { m_systems.swap(other.m_systems); }

private:
    SystemList::const_iterator Find(int systemId) const;

    SystemList m_systems;
};

}  // namespace XimoGis::System
