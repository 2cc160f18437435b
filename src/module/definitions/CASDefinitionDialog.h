#pragma once
// The definition editor, run on one definition of a repository in "new" or "edit" mode. This
// build has no windows: the user's part comes as a CASDefinitionEdit. The changes are made on a
// copy and given to the definition only when they are confirmed and all of them are valid, so a
// cancelled or refused edit leaves the definition as it was.

#include "module/definitions/CASDefinitionEdit.h"

#include <string>

namespace XimoGis::AssemblySchemes {

class CASDefinition;
class CASRepository;

class CASDefinitionDialog {
public:
    enum enmMode { eModeNew, eModeEdit };

    // `edit` may be null: with no answer from the user the dialog counts as cancelled.
    CASDefinitionDialog(CASDefinition* definition, CASRepository* repository, enmMode mode,
                        const CASDefinitionEdit* edit);

    // 1 when the user confirmed and the changes were made; 0 otherwise, with the reason in
    // GetError() when a change was refused.
    int DoModal();
    const std::wstring& GetError() const { return m_error; }
    enmMode GetMode() const { return m_mode; }

private:
    bool Apply(CASDefinition& work);
    bool ApplyName(CASDefinition& work);
    bool ApplyProperties(CASDefinition& work);
    bool RemoveComponents(CASDefinition& work);
    bool AddComponents(CASDefinition& work);
    bool Refuse(const std::wstring& reason);

    CASDefinition* m_definition;
    CASRepository* m_repository;
    enmMode m_mode;
    const CASDefinitionEdit* m_edit;
    std::wstring m_error;
};

}  // namespace XimoGis::AssemblySchemes
