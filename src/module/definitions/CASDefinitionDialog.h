#pragma once
// The definition editor, run on one definition of a repository in "new" or "edit" mode. This
// build has no windows: the changes typed into the fields come as a CASDefinitionEdit, and the
// closing button from the input script, at the prompt
//   Save the definition "<name>"? [OK/Cancel] <OK>:
// where "OK" or Enter confirms, and "Cancel", Escape or an empty script cancel. The changes are
// made on a copy and given to the definition only when all of them are valid and the user
// confirms, so a cancelled or refused edit leaves the definition as it was.

#include "module/definitions/CASDefinitionEdit.h"

#include <string>

namespace XimoGis::AssemblySchemes {

class CASDefinition;
class CASRepository;

class CASDefinitionDialog {
public:
    enum enmMode { eModeNew, eModeEdit };

    // `edit` may be null: the user changes nothing.
    CASDefinitionDialog(CASDefinition* definition, CASRepository* repository, enmMode mode,
                        const CASDefinitionEdit* edit);

    // 1 when the changes were made and the user confirmed; 0 otherwise, with the reason in
    // GetError() when a change was refused (the user is then not asked).
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
    static bool Confirmed(const std::wstring& name);

    CASDefinition* m_definition;
    CASRepository* m_repository;
    enmMode m_mode;
    const CASDefinitionEdit* m_edit;
    std::wstring m_error;
};

}  // namespace XimoGis::AssemblySchemes
