#pragma once
// The drawn schemes of one drawing document, keyed by the sheets' GUIDs (compared exactly).

#include "module/instances/CASInstance.h"

#include <boost/shared_ptr.hpp>

#include <map>
#include <string>

namespace XimoGis::AssemblySchemes {

class CASInstanceStorage {
public:
    using Registry = std::map<std::wstring, boost::shared_ptr<CASInstance>>;

    // Stores the instance under its GUID, replacing one stored under the same GUID; null is ignored.
    void AddASInstance(const boost::shared_ptr<CASInstance>& instance);
    void DeleteASInstance(const boost::shared_ptr<CASInstance>& instance);
    // Empty when there is no instance with that GUID.
    boost::shared_ptr<CASInstance> GetASInstanceById(const wchar_t* id) const;
    void Clear() { m_instances.clear(); }
    const Registry& GetASRegistry() const { return m_instances; }

private:
    Registry m_instances;
};

}  // namespace XimoGis::AssemblySchemes
