#pragma once
// The networks of the systems of the open workspace, each read from the workspace store on
// first use (the store opened read-only) and kept until the workspace changes or the system's
// network changes (framework notifications about the workspace, systems, nodes and sections
// drop it, and so does Reset after a writer changed the store).

#include "framework/topology/CTopologyStorage.h"

#include <boost/shared_ptr.hpp>

#include <map>
#include <string>

namespace XimoGis::System {
class CGisSystem;
}

namespace XimoGis::Topology {

class CTopologyMultiStorage {
public:
    static CTopologyMultiStorage* Instance();

    // The system's network; null for a null system, with no workspace open, or when the store
    // cannot be read (GetLastError names the file and the fault). The storage lives until it is
    // dropped as said above.
    CTopologyStorage* GetTopology(System::CGisSystem* system);
    CTopologyStorage* GetTopology(int systemId);
    // Drops every network, or one system's: the next GetTopology reads it again.
    void Reset();
    void Reset(int systemId);
    const std::wstring& GetLastError() const { return m_lastError; }

    CTopologyMultiStorage(const CTopologyMultiStorage&) = delete;
    CTopologyMultiStorage& operator=(const CTopologyMultiStorage&) = delete;

private:
    CTopologyMultiStorage();

    std::wstring m_workspace;  // the folder the networks were read from
    std::map<int, boost::shared_ptr<CTopologyStorage>> m_storages;
    std::wstring m_lastError;
};

}  // namespace XimoGis::Topology
