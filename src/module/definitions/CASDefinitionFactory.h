#pragma once
// Makes and edits scheme definitions for the repository browser, the single instance working on
// the repository given last to Instance(). The "UI" forms run the definition editor, with the
// field changes set by SetEditorInput and the confirmation read from the input script.

#include "module/definitions/CASDefinitionDialog.h"
#include "module/definitions/CASDefinitionEdit.h"

#include "framework/repository/CRepositoryItemFactory.h"

#include <optional>
#include <string>

namespace XimoGis::AssemblySchemes {

class CASRepository;

class CASDefinitionFactory : public CRepositoryItemFactory {
public:
    // Topology function and type given to definitions made for a system.
    static constexpr int kSchemeTopologyFunction = 50001;
    static constexpr int kSchemeTopologyType = 8;

    // Creates the instance on the first call; every call sets the repository it works on.
    static CASDefinitionFactory* Instance(CASRepository* repository);
    CASRepository* GetRepo() const { return m_repository; }

    CASDefinitionFactory(const CASDefinitionFactory&) = delete;
    CASDefinitionFactory& operator=(const CASDefinitionFactory&) = delete;

    // A new definition copied from `source` (components shared); null when `source` is not a
    // scheme definition. The caller owns the result.
    CRepositoryItem* CreateRepositoryItem(const CRepositoryItem* source) override;
    // A new definition named with the repository's next free name on message 22271 ("Assembly
    // scheme 3"); with a system it gets topology function 50001 and topology type 8. Null when
    // the factory has no repository. The entity type is not used.
    CRepositoryItem* CreateRepositoryItem(enmEntityType type, System::CGisSystem* system) override;
    // As CreateRepositoryItem(source); no editor.
    CRepositoryItem* CreateRepositoryItemUI(const CRepositoryItem* source) override;
    // A new definition edited in "new" mode: returned when confirmed, destroyed (null) when not.
    CRepositoryItem* CreateRepositoryItemUI(enmEntityType type, System::CGisSystem* system) override;
    // Edits the definition in "edit" mode; non-zero when confirmed. 0 without a repository.
    int EditRepositoryItemUI(CRepositoryItem* item) override;

    void SetEditorInput(const CASDefinitionEdit& edit) { m_editorInput = edit; }
    void ClearEditorInput() { m_editorInput.reset(); }
    // Why the last editor run refused its changes; empty after a confirmed or cancelled run.
    const std::wstring& GetLastEditorError() const { return m_lastEditorError; }

private:
    CASDefinitionFactory() = default;
    int RunEditor(CRepositoryItem* item, CASDefinitionDialog::enmMode mode);

    CASRepository* m_repository = nullptr;
    std::optional<CASDefinitionEdit> m_editorInput;
    std::wstring m_lastEditorError;

    static CASDefinitionFactory* m_pInstance;
};

}  // namespace XimoGis::AssemblySchemes
