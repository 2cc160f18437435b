#include "CSchemeDrawing.h"

#include "CAschWorkspace.h"

#include "framework/repository/CRepositoryManager.h"
#include "framework/systems/CSystemManager.h"
#include "framework/topology/CNode.h"
#include "framework/topology/CTopologyMultiStorage.h"
#include "host/base/AcString.h"
#include "host/documents/AcApDocManager.h"
#include "host/input/AcEdInputScript.h"
#include "module/definitions/CASDefinition.h"
#include "module/definitions/CASRepository.h"
#include "module/instances/CASInstanceStorage.h"
#include "module/manager/CASManager.h"

#include <filesystem>

namespace XimoGis::Asch {

using AssemblySchemes::CASDefinition;
using AssemblySchemes::CASManager;

CSchemeDrawing::~CSchemeDrawing() {
    if (m_document) acDocManager->closeDocument(m_document);
}

bool CSchemeDrawing::Open(const std::wstring& workspace, const std::wstring& drawing, std::wstring& error) {
    auto* systems = System::CSystemManager::Instance();
    if (!OpenAschWorkspace(workspace, error)) return false;
    m_system = systems->GetActiveSystem();
    if (!m_system || m_system->GetTopologyType() != System::CGisSystem::kSchemeTopologyType) {
        error = L"workspace '" + workspace + L"' has no active system that carries assembly schemes";
        return false;
    }
    std::error_code code;
    const bool exists = std::filesystem::exists(std::filesystem::path(acutWcharToUtf8(drawing)), code);
    const Acad::ErrorStatus opened = exists ? acDocManager->appContextOpenDocument(drawing.c_str(), &error)
                                            : acDocManager->appContextNewDocument(nullptr, &error);
    if (opened != Acad::eOk) {
        if (error.empty()) error = L"cannot open '" + drawing + L"'";
        return false;
    }
    m_document = acDocManager->curDocument();
    m_fileName = drawing;
    acedInputScript()->clear();
    CASManager::Instance()->ReloadInstanceStorage();
    return true;
}

bool CSchemeDrawing::Save(std::wstring& error) const {
    if (!m_document) return false;
    std::wstring why;
    if (m_document->database()->dxfOut(m_fileName.c_str(), &why) == Acad::eOk) return true;
    error = why.empty() ? L"cannot write '" + m_fileName + L"'" : why;
    return false;
}

CASDefinition* CSchemeDrawing::FindDefinition(const std::wstring& reference, std::wstring& error) const {
    CASDefinition* definition = CASManager::Instance()->GetASDefinitionById(reference.c_str());
    if (!definition) {
        CDefinitionRepository* repository = CRepositoryManager::GetSystemRepository(
            m_system, AssemblySchemes::CASRepository::kRepositoryKey, 0);
        if (repository)
            definition = dynamic_cast<CASDefinition*>(repository->GetRepositoryItemByName(reference.c_str()));
    }
    if (!definition)
        error = L"system " + std::to_wstring(m_system->GetSystemId()) + L" has no scheme definition \"" + reference +
                L"\"";
    return definition;
}

boost::shared_ptr<Topology::CNode> CSchemeDrawing::FindNode(const std::wstring& reference,
                                                            std::wstring& error) const {
    std::vector<boost::shared_ptr<Topology::CNode>> nodes;
    if (!GetNodes(nodes, error)) return {};
    for (const auto& node : nodes) {
        if (node->GetGuid() == reference) return node;
    }
    for (const auto& node : nodes) {
        if (node->GetName() == reference) return node;
    }
    error = L"system \"" + m_system->GetName() + L"\" has no node \"" + reference + L"\"";
    return {};
}

bool CSchemeDrawing::GetNodes(std::vector<boost::shared_ptr<Topology::CNode>>& nodes, std::wstring& error) const {
    auto* storages = Topology::CTopologyMultiStorage::Instance();
    const Topology::CTopologyStorage* topology = storages->GetTopology(m_system);
    if (!topology) {
        error = storages->GetLastError();
        return false;
    }
    nodes = topology->GetNodes();
    return true;
}

boost::shared_ptr<AssemblySchemes::CASInstance> CSchemeDrawing::FindScheme(const std::wstring& id,
                                                                           std::wstring& error) const {
    auto scheme = CASManager::Instance()->GetASIStorage()->GetASInstanceById(id.c_str());
    if (!scheme) error = L"'" + m_fileName + L"' has no scheme " + id;
    return scheme;
}

}  // namespace XimoGis::Asch
