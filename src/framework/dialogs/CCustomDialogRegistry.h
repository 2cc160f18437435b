#pragma once
// The process-wide registry of custom property dialogs, keyed by custom control id. This build has
// no windows: the user's answer for a control id is given beforehand (the command line does so with
// SetPresetValue), and a dialog whose control id has no answer counts as cancelled.

#include "framework/dialogs/ICustomDialog.h"

#include <boost/shared_ptr.hpp>

#include <map>
#include <string>

namespace XimoGis::Data {

enum class enmCustomDialogResult {
    Chosen,  // the dialog wrote a value
    Cancelled,  // no answer, or the dialog refused it; nothing changed
    NoDialog,  // no dialog is registered under the property's custom control id
};

class CCustomDialogRegistry {
public:
    static CCustomDialogRegistry* Instance();

    CCustomDialogRegistry(const CCustomDialogRegistry&) = delete;
    CCustomDialogRegistry& operator=(const CCustomDialogRegistry&) = delete;

    // Keeps the dialog for the life of the process; a later registration under the same id replaces
    // the earlier one. False (nothing registered) for an empty id or a null dialog.
    bool RegisterDialog(const std::wstring& controlId, const boost::shared_ptr<ICustomDialog>& dialog);
    bool UnregisterDialog(const std::wstring& controlId);
    boost::shared_ptr<ICustomDialog> GetDialog(const std::wstring& controlId) const;

    // The answer every later run of this control id's dialog gets, until cleared.
    void SetPresetValue(const std::wstring& controlId, const std::wstring& value);
    bool ClearPresetValue(const std::wstring& controlId);
    void ClearPresetValues();

    // Runs the dialog registered under the property's custom control id with its preset answer, or
    // without one with the next text of the input script (Escape or an empty script cancels). When
    // a value is chosen and `properties` is given, the property's dependency rule is applied to it.
    enmCustomDialogResult RunDialog(CPropertyEx& property, CPropertiesEx* properties);

private:
    CCustomDialogRegistry() = default;

    std::map<std::wstring, boost::shared_ptr<ICustomDialog>> m_dialogs;
    std::map<std::wstring, std::wstring> m_presetValues;
};

}  // namespace XimoGis::Data
