#include "framework/topology/CTopologyStorage.h"

#include "framework/topology/CNetworkLayers.h"

#include <boost/make_shared.hpp>

namespace XimoGis::Topology {

using Data::enmDataTarget;

CTopologyStorage::CTopologyStorage(int systemId) : m_systemId(systemId) {}

void CTopologyStorage::Clear() {
    ClearNetwork();
    m_configuration.Clear();
}

void CTopologyStorage::ClearNetwork() {
    m_nodes.clear();
    m_sections.clear();
    m_nodesByGuid.clear();
    m_sectionsByGuid.clear();
}

bool CTopologyStorage::Load(const Workspace::CWorkspaceStore& store, std::wstring& error) {
    Clear();
    std::vector<CNetworkFeature> nodes, sections;
    const bool read =
        CNetworkLayers::LoadDefinitions(store, m_systemId, enmDataTarget::Node, m_configuration, error) &&
        CNetworkLayers::LoadDefinitions(store, m_systemId, enmDataTarget::Section, m_configuration, error) &&
        CNetworkLayers::LoadFeatures(store, m_systemId, enmDataTarget::Node, m_configuration, nodes, error) &&
        CNetworkLayers::LoadFeatures(store, m_systemId, enmDataTarget::Section, m_configuration, sections, error);
    if (!read) {
        Clear();
        return false;
    }
    Build(nodes, sections);
    return true;
}

void CTopologyStorage::Build(const std::vector<CNetworkFeature>& nodes, const std::vector<CNetworkFeature>& sections) {
    ClearNetwork();
    for (const CNetworkFeature& feature : nodes) {
        if (feature.geometry.empty() || m_nodesByGuid.count(feature.guid)) continue;
        auto node = boost::make_shared<CNode>(m_systemId, feature.guid, feature.name, feature.geometry.front());
        for (const auto& [column, value] : feature.values) node->SetValue(column, value);
        m_nodesByGuid[feature.guid] = node.get();
        m_nodes.push_back(node);
    }
    for (const CNetworkFeature& feature : sections) {
        if (m_sectionsByGuid.count(feature.guid)) continue;
        auto section = boost::make_shared<CSection>(m_systemId, feature.guid, feature.name, feature.geometry,
                                                    feature.startNode, feature.endNode);
        for (const auto& [column, value] : feature.values) section->SetValue(column, value);
        section->m_startNode = GetNodeByGuid(feature.startNode);
        section->m_endNode = GetNodeByGuid(feature.endNode);
        if (section->m_startNode) section->m_startNode->m_sectionsOut.push_back(section.get());
        if (section->m_endNode) section->m_endNode->m_sectionsIn.push_back(section.get());
        m_sectionsByGuid[feature.guid] = section.get();
        m_sections.push_back(section);
    }
}

CNode* CTopologyStorage::GetNodeByGuid(const std::wstring& guid) const {
    const auto found = m_nodesByGuid.find(guid);
    return found == m_nodesByGuid.end() ? nullptr : found->second;
}

CSection* CTopologyStorage::GetSectionByGuid(const std::wstring& guid) const {
    const auto found = m_sectionsByGuid.find(guid);
    return found == m_sectionsByGuid.end() ? nullptr : found->second;
}

CNode* CTopologyStorage::GetNodeByName(const std::wstring& name) const {
    for (const auto& node : m_nodes) {
        if (node->GetName() == name) return node.get();
    }
    return nullptr;
}

}  // namespace XimoGis::Topology
