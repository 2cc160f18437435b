#include "module/definitions/CASDefinitionFactory.h"

#include "module/definitions/CASDefinition.h"
#include "module/definitions/CASDefinitionDialog.h"
#include "module/definitions/CASRepository.h"

#include "framework/config/CModuleConfiguration.h"

#include <memory>

namespace XimoGis::AssemblySchemes {

CASDefinitionFactory* CASDefinitionFactory::m_pInstance = nullptr;

CASDefinitionFactory* CASDefinitionFactory::Instance(CASRepository* repository) {
    if (!m_pInstance) m_pInstance = new CASDefinitionFactory();
    m_pInstance->m_repository = repository;
    return m_pInstance;
}

CRepositoryItem* CASDefinitionFactory::CreateRepositoryItem(const CRepositoryItem* source) {
    const auto* definition = dynamic_cast<const CASDefinition*>(source);
    return definition ? new CASDefinition(definition) : nullptr;
}

CRepositoryItem* CASDefinitionFactory::CreateRepositoryItem(enmEntityType /*type*/, System::CGisSystem* system) {
    if (!m_repository) return nullptr;
    auto* definition = new CASDefinition();
    definition->SetName(m_repository->GetNextRepositoryItemName(CModuleConfiguration::GetMsg(22271).c_str()));
    if (system) {
        definition->SetTopologyFunction(kSchemeTopologyFunction);
        definition->SetTopologyType(kSchemeTopologyType);
    }
    return definition;
}

CRepositoryItem* CASDefinitionFactory::CreateRepositoryItemUI(const CRepositoryItem* source) {
    return CreateRepositoryItem(source);
}

CRepositoryItem* CASDefinitionFactory::CreateRepositoryItemUI(enmEntityType type, System::CGisSystem* system) {
    if (!m_repository) return nullptr;
    std::unique_ptr<CRepositoryItem> item(CreateRepositoryItem(type, system));
    if (!item || !RunEditor(item.get(), CASDefinitionDialog::eModeNew)) return nullptr;
    return item.release();
}

int CASDefinitionFactory::EditRepositoryItemUI(CRepositoryItem* item) {
    if (!m_repository) return 0;
    return RunEditor(item, CASDefinitionDialog::eModeEdit);
}

int CASDefinitionFactory::RunEditor(CRepositoryItem* item, CASDefinitionDialog::enmMode mode) {
    m_lastEditorError.clear();
    auto* definition = dynamic_cast<CASDefinition*>(item);
    if (!definition) return 0;
    CASDefinitionDialog dialog(definition, m_repository, mode, m_editorInput ? &*m_editorInput : nullptr);
    const int confirmed = dialog.DoModal();
    m_lastEditorError = dialog.GetError();
    return confirmed;
}

}  // namespace XimoGis::AssemblySchemes
