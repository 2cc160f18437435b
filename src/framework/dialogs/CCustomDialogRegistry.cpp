#include "framework/dialogs/CCustomDialogRegistry.h"

#include "host/input/acedInput.h"

namespace XimoGis::Data {

CCustomDialogRegistry* CCustomDialogRegistry::Instance() {
    static CCustomDialogRegistry registry;
    return &registry;
}

bool CCustomDialogRegistry::RegisterDialog(const std::wstring& controlId,
                                           const boost::shared_ptr<ICustomDialog>& dialog) {
    if (controlId.empty() || !dialog) return false;
    m_dialogs[controlId] = dialog;
    return true;
}

bool CCustomDialogRegistry::UnregisterDialog(const std::wstring& controlId) {
    return m_dialogs.erase(controlId) > 0;
}

boost::shared_ptr<ICustomDialog> CCustomDialogRegistry::GetDialog(const std::wstring& controlId) const {
    const auto found = m_dialogs.find(controlId);
    return found == m_dialogs.end() ? boost::shared_ptr<ICustomDialog>() : found->second;
}

void CCustomDialogRegistry::SetPresetValue(const std::wstring& controlId, const std::wstring& value) {
    m_presetValues[controlId] = value;
}

bool CCustomDialogRegistry::ClearPresetValue(const std::wstring& controlId) {
    return m_presetValues.erase(controlId) > 0;
}

void CCustomDialogRegistry::ClearPresetValues() {
    m_presetValues.clear();
}

enmCustomDialogResult CCustomDialogRegistry::RunDialog(CPropertyEx& property, CPropertiesEx* properties) {
    const auto dialog = GetDialog(property.GetCustomControlId());
    if (!dialog) return enmCustomDialogResult::NoDialog;
    std::wstring answer;
    if (const auto preset = m_presetValues.find(property.GetCustomControlId()); preset != m_presetValues.end()) {
        answer = preset->second;
    } else {
        // Without a preset the answer is read from the input script; Escape or nothing cancels.
        ACHAR typed[512] = L"";
        const std::wstring prompt = L"\n" + property.GetTag() + L": ";
        if (acedGetString(1, prompt.c_str(), typed, 512) != RTNORM) return enmCustomDialogResult::Cancelled;
        answer = typed;
    }
    if (!dialog->Run(property, properties, answer)) return enmCustomDialogResult::Cancelled;
    if (properties) properties->ApplyDependencies(property.GetTag());
    return enmCustomDialogResult::Chosen;
}

}  // namespace XimoGis::Data
