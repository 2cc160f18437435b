#pragma once
// The drawn schemes of one drawing document, keyed by the sheets' GUIDs (compared exactly). It is
// filled by scanning the drawing for the attributes that sheets and elements write onto their
// entities, and kept up to date by the editor as it adds and deletes sheets. The manager keeps one
// per open document.

#include "module/instances/CASAudit.h"
#include "module/instances/CASInstance.h"

#include <boost/shared_ptr.hpp>

#include <map>
#include <string>
#include <vector>

namespace XimoGis::System {
class CGisSystem;
}

namespace XimoGis::AssemblySchemes {

class CASInstanceStorage {
public:
    using Registry = std::map<std::wstring, boost::shared_ptr<CASInstance>>;

    // Stores the instance under its GUID, replacing one stored under the same GUID; null is ignored.
    void AddASInstance(const boost::shared_ptr<CASInstance>& instance);
    void DeleteASInstance(const boost::shared_ptr<CASInstance>& instance);
    // Empty when there is no instance with that GUID.
    boost::shared_ptr<CASInstance> GetASInstanceById(const wchar_t* id) const;
    // Drops every instance and the findings of the last scan.
    void Clear();
    const Registry& GetASRegistry() const { return m_instances; }

    // Scans every entity of every block of the host's working database, in database order, and
    // feeds each sheet or element entity to the instance its Guid names (made on first sight).
    // Erased entities are passed over; with a system, so are entities of other systems. Nothing
    // is removed: callers clear first. Damaged attributes never stop the scan; what it skipped
    // is listed in GetProblems() until the next scan.
    void ReloadInstanceStorage(System::CGisSystem* system);
    const std::vector<CASAuditProblem>& GetProblems() const { return m_audit.GetProblems(); }

private:
    // `seen` collects the GUIDs of the sheets fed, in the order they were first met.
    void Feed(CXimoCEntityPtr& entity, System::CGisSystem* system, std::vector<std::wstring>& seen);
    void AuditScanned(const std::vector<std::wstring>& seen);

    Registry m_instances;
    CASAudit m_audit;
};

}  // namespace XimoGis::AssemblySchemes
