#include "module/manager/CASManager.h"

#include "module/catalog/CASBlockFileName.h"
#include "module/components/ASComponent_BOM.h"
#include "module/components/ASComponent_Comment.h"
#include "module/components/ASComponent_Frame.h"
#include "module/components/ASComponent_FreeEntry.h"
#include "module/components/ASComponent_InfoTable.h"
#include "module/components/ASComponent_Manhole_SideView.h"
#include "module/components/ASComponent_Manhole_TopView.h"
#include "module/components/ASComponent_MiniScheme.h"
#include "module/components/ASComponent_PositionLabel.h"
#include "module/components/ASComponent_Scheme.h"
#include "module/components/ASComponent_Text.h"
#include "module/components/CCustomAS_DataPicker_Node.h"
#include "module/components/CCustomDlgBOMDataPicker.h"
#include "module/components/CCustomDlgBlockPicker.h"
#include "module/definitions/CASDefinition.h"
#include "module/definitions/CASRepository.h"
#include "module/definitions/CASRepositoryFactory.h"
#include "module/instances/CASEventResponder.h"
#include "module/instances/CASInstance.h"
#include "module/instances/CASInstanceStorage.h"
#include "module/manager/CASPluginLoader.h"
#include "module/support/ASFunctionTrace.h"

#include "framework/config/CModuleConfiguration.h"
#include "framework/dialogs/CCustomDialogRegistry.h"
#include "framework/notification/CNotificationFramework.h"
#include "framework/repository/CRepositoryManager.h"
#include "framework/systems/CGisSystem.h"
#include "framework/systems/CSystemManager.h"
#include "framework/workspace/CWsManager.h"
#include "host/documents/CAcModuleResourceOverride.h"

#include <boost/make_shared.hpp>

namespace XimoGis::AssemblySchemes {

using System::CGisSystem;
using System::CSystemManager;

CASManager* CASManager::m_pInstance = nullptr;

CASManager* CASManager::Instance() {
    if (m_pInstance) return m_pInstance;
    // Stored first: plug-ins loaded below call Instance() to register their providers.
    m_pInstance = new CASManager();
    m_pInstance->LoadAssemblyElementsPlugins();
    m_pInstance->RegisterSchemeComponents();
    m_pInstance->m_responder = boost::make_shared<CASEventResponder>();
    CNotificationFramework::Instance()->RegisterEventResponder(m_pInstance->m_responder);
    CRepositoryManager::RegisterRepositoryFactory(CASRepository::kRepositoryKey,
                                                  boost::make_shared<CASRepositoryFactory>());
    return m_pInstance;
}

CASManager::~CASManager() {
    if (m_responder) CNotificationFramework::Instance()->UnregisterEventResponder(m_responder.get());
}

void CASManager::LoadAssemblyElementsPlugins() {
    CASPluginLoader::LoadPlugins(CModuleConfiguration::GetPath(L"install"));
}

void CASManager::RegisterSchemeComponents() {
    AddSchemeComponent(boost::make_shared<CASComponent_BOM>());
    AddSchemeComponent(boost::make_shared<CASComponent_Frame>());
    AddSchemeComponent(boost::make_shared<CASComponent_InfoTable>());
    AddSchemeComponent(boost::make_shared<CASComponent_MiniScheme>());
    AddSchemeComponent(boost::make_shared<CASComponent_Scheme>());
    AddSchemeComponent(boost::make_shared<CASComponent_Text>());
    AddSchemeComponent(boost::make_shared<CASComponent_Comment>());
    AddSchemeComponent(boost::make_shared<CASComponent_FreeEntry>());
    AddSchemeComponent(boost::make_shared<CASComponent_PositionLabel>());
    AddSchemeComponent(boost::make_shared<CASComponent_Manhole_SideView>());
    AddSchemeComponent(boost::make_shared<CASComponent_Manhole_TopView>());

    Data::CCustomDialogRegistry* dialogs = Data::CCustomDialogRegistry::Instance();
    dialogs->RegisterDialog(CCustomDlgBOMDataPicker::kControlId, boost::make_shared<CCustomDlgBOMDataPicker>());
    dialogs->RegisterDialog(CCustomDlgBlockPicker::kControlId, boost::make_shared<CCustomDlgBlockPicker>());
    dialogs->RegisterDialog(CCustomAS_DataPicker_Node::kControlId, boost::make_shared<CCustomAS_DataPicker_Node>());
}

void CASManager::AddSchemeComponent(const boost::shared_ptr<IASComponentInterface>& component) {
    if (component) m_components.emplace(component->GetId(), component);
}

boost::shared_ptr<IASComponentInterface> CASManager::GetASComponentById(const wchar_t* id) const {
    if (!id) return {};
    const auto found = m_components.find(id);
    return found == m_components.end() ? boost::shared_ptr<IASComponentInterface>() : found->second;
}

void CASManager::GetASComponents(std::vector<boost::shared_ptr<IASComponentInterface>>& components) const {
    for (const auto& [id, component] : m_components) components.push_back(component);
}

void CASManager::RegisterAssemblyElement(const boost::shared_ptr<IAssemblyElementTypeProvider>& provider) {
    if (provider) m_elementTypes.emplace(provider->GetProviderId(), provider);
}

boost::shared_ptr<IAssemblyElementTypeProvider> CASManager::GetAETypeProvider(const wchar_t* id) const {
    if (!id) return {};
    const auto found = m_elementTypes.find(id);
    return found == m_elementTypes.end() ? boost::shared_ptr<IAssemblyElementTypeProvider>() : found->second;
}

CASDefinition* CASManager::GetASDefinitionById(const wchar_t* id) const {
    CGisSystem* system = CSystemManager::Instance()->GetActiveSystem();
    if (!id || !system || system->GetTopologyType() != CGisSystem::kSchemeTopologyType) return nullptr;
    CDefinitionRepository* repository =
        CRepositoryManager::GetSystemRepository(system, CASRepository::kRepositoryKey, 0);
    if (!repository) return nullptr;
    return dynamic_cast<CASDefinition*>(repository->GetRepositoryItemById(id));
}

CGisSystem* CASManager::GetSystemByASDefinitionId(const wchar_t* id) const {
    if (!id) return nullptr;
    for (const auto& system : CSystemManager::Instance()->GetSystems()->GetSystemList()) {
        if (!system || system->GetTopologyType() != CGisSystem::kSchemeTopologyType) continue;
        // Read again on every call, so that definitions saved by other parties are seen.
        CDefinitionRepository* repository = CRepositoryManager::GetSystemRepository(
            system.get(), CASRepository::kRepositoryKey, CRepositoryManager::kReload);
        if (!repository || !repository->GetLastError().empty()) continue;
        for (const CRepositoryItem* item : repository->GetRepositoryItems()) {
            if (item->GetId() == id) return system.get();
        }
    }
    return nullptr;
}

std::wstring CASManager::GetASElementsBlockPath() const {
    const std::wstring support = CModuleConfiguration::GetPath(L"support");
    return support.empty() ? support : support + L"AssemblyElements/";
}

std::wstring CASManager::GetBlockFileName(enmViewDirection view, Data::CCatalogItem* catalogItem) const {
    return CASBlockFileName::MakeNew(GetASElementsBlockPath(), view, catalogItem);
}

boost::shared_ptr<CASInstanceStorage>& CASManager::GetASIStorage() {
    boost::shared_ptr<CASInstanceStorage>& storage = m_storages.docData();
    if (!storage) storage = boost::make_shared<CASInstanceStorage>();
    return storage;
}

void CASManager::ReloadInstanceStorage() {
    const boost::shared_ptr<CASInstanceStorage>& storage = GetASIStorage();
    storage->Clear();
    storage->ReloadInstanceStorage(nullptr);
}

CASDefinition* CASManager::DefinitionForEvent(CASInstance* instance, CASDefinition* definition) const {
    return definition ? definition : GetASDefinitionById(instance->GetDefinitionId().c_str());
}

void CASManager::Raise_OnAfterASElementInserted(CASInstance* instance, CASDefinition* definition,
                                                CASElementInstance* element) {
    if (m_listenersBlocked || !instance || !element) return;
    definition = DefinitionForEvent(instance, definition);
    for (const auto& [id, component] : m_components) component->OnAfterASElementInserted(instance, definition, element);
}

void CASManager::Raise_OnBeforeASElementDeleted(CASInstance* instance, CASDefinition* definition,
                                                CASElementInstance* element) {
    if (m_listenersBlocked || !instance || !element) return;
    definition = DefinitionForEvent(instance, definition);
    for (const auto& [id, component] : m_components) component->OnBeforeASElementDeleted(instance, definition, element);
}

void CASManager::Raise_OnElementPositionChanged(CASInstance* instance, CASDefinition* definition,
                                                std::vector<CASElementInstance*>& elements) {
    AS_FUNCTION_TRACE(L"AssemblySchemes_Manager",
                      L"XimoGis::AssemblySchemes::CASManager::Raise_OnElementPositionChanged");
    if (m_listenersBlocked || !instance) return;
    definition = DefinitionForEvent(instance, definition);
    for (const auto& [id, component] : m_components)
        component->OnElementPositionChanged(instance, definition, elements);
}

void CASManager::Raise_OnRequestUpdateBOM(CASInstance* instance, CASDefinition* definition) {
    if (m_listenersBlocked || !instance) return;
    definition = DefinitionForEvent(instance, definition);
    for (const auto& [id, component] : m_components) component->OnRequestUpdateBOM(instance, definition);
}

void CASManager::Raise_OnRequestUpdatePositionLabels(CASInstance* instance, CASDefinition* definition) {
    if (m_listenersBlocked || !instance) return;
    definition = DefinitionForEvent(instance, definition);
    for (const auto& [id, component] : m_components) component->OnRequestUpdatePositionLabels(instance, definition);
}

void CASManager::ShowASManager() {
    [[maybe_unused]] CAcModuleResourceOverride resources;
    const CASInstanceStorage::Registry& schemes = GetASIStorage()->GetASRegistry();
    Workspace::CWsManager::LogMessage(
        0, L"Scheme manager: " + std::to_wstring(schemes.size()) + L" scheme(s) in the current drawing");
    for (const auto& [guid, instance] : schemes)
        Workspace::CWsManager::LogMessage(0, L"Scheme of definition \"" + instance->GetDefinitionId() + L"\"", guid);
}

void CASManager::ShowASElementEditor() {
    [[maybe_unused]] CAcModuleResourceOverride resources;
    Workspace::CWsManager::LogMessage(0, L"Element block editor: no window in this build, nothing edited");
}

void CASManager::ShowCatalogConverter() {
    [[maybe_unused]] CAcModuleResourceOverride resources;
    Workspace::CWsManager::LogMessage(0, L"Catalog converter: no window in this build, nothing converted");
}

}  // namespace XimoGis::AssemblySchemes
