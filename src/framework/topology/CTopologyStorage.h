#pragma once
// The network of one system as read from the workspace store: its nodes and sections, joined
// (each section knows its end nodes, each node its sections in and out), and its data
// definitions. The storage owns them; pointers handed out live as long as the storage.

#include "framework/data/CDataConfiguration.h"
#include "framework/topology/CNetworkFeature.h"
#include "framework/topology/CNode.h"
#include "framework/topology/CSection.h"

#include <boost/shared_ptr.hpp>

#include <map>
#include <string>
#include <vector>

namespace XimoGis::Workspace {
class CWorkspaceStore;
}

namespace XimoGis::Topology {

class CTopologyStorage {
public:
    explicit CTopologyStorage(int systemId);
    CTopologyStorage(const CTopologyStorage&) = delete;
    CTopologyStorage& operator=(const CTopologyStorage&) = delete;

    // Replaces the content with the system's layers in the store. A section whose end node is not
    // a node of the system stays without that node. On failure the storage is left empty and
    // `error` names the file and the fault.
    bool Load(const Workspace::CWorkspaceStore& store, std::wstring& error);
    // Replaces the nodes and sections with features already read, keeping the data configuration
    // (the loader's second half; tests use it).
    void Build(const std::vector<CNetworkFeature>& nodes, const std::vector<CNetworkFeature>& sections);

    int GetSystemId() const { return m_systemId; }
    // Exact, case-sensitive look-ups; null when absent.
    CNode* GetNodeByGuid(const std::wstring& guid) const;
    CSection* GetSectionByGuid(const std::wstring& guid) const;
    // The first node with this name; null when none has it.
    CNode* GetNodeByName(const std::wstring& name) const;
    // In layer order.
    const std::vector<boost::shared_ptr<CNode>>& GetNodes() const { return m_nodes; }
    const std::vector<boost::shared_ptr<CSection>>& GetSections() const { return m_sections; }

    const Data::CDataConfiguration& GetDataConfiguration() const { return m_configuration; }
    Data::CDataConfiguration& GetDataConfiguration() { return m_configuration; }

private:
    void Clear();
    void ClearNetwork();

    int m_systemId;
    std::vector<boost::shared_ptr<CNode>> m_nodes;
    std::vector<boost::shared_ptr<CSection>> m_sections;
    std::map<std::wstring, CNode*> m_nodesByGuid;
    std::map<std::wstring, CSection*> m_sectionsByGuid;
    Data::CDataConfiguration m_configuration;
};

}  // namespace XimoGis::Topology
