#include "framework/data/CPropertyEx.h"

#include "framework/data/CPropertyDependency.h"

namespace XimoGis::Data {

CPropertyEx::CPropertyEx(std::wstring tag, enmPropertyValueType valueType, int editorType, int nameMsg,
                         int descriptionMsg)
    : m_tag(std::move(tag)),
      m_valueType(valueType),
      m_editorType(editorType),
      m_nameMsg(nameMsg),
      m_descriptionMsg(descriptionMsg) {}

void CPropertyEx::SetValue(const CPropertyValue& value) {
    m_value = value;
    if (m_valueType != enmPropertyValueType::ListIndex) {
        m_hiddenValue = value;
        return;
    }
    for (const CPropertyListChoice& choice : m_listChoices) {
        if (!value.IsNull() && choice.text == value.GetText()) {
            m_hiddenValue = CPropertyValue(choice.hiddenValue);
            return;
        }
    }
}

void CPropertyEx::SetValue(const CPropertyValue& value, const CPropertyValue& hiddenValue) {
    m_value = value;
    m_hiddenValue = hiddenValue;
}

const CPropertyValue& CPropertyEx::GetValueFor(int flag) const {
    if (flag == 0 || m_hiddenValue.IsNull()) return m_value;
    return m_hiddenValue;
}

void CPropertyEx::SetDefaultAndValue(const CPropertyValue& value, const CPropertyValue& hiddenValue) {
    m_defaultValue = value;
    m_defaultHiddenValue = hiddenValue;
    ResetToDefault();
}

void CPropertyEx::ResetToDefault() {
    m_value = m_defaultValue;
    m_hiddenValue = m_defaultHiddenValue;
}

void CPropertyEx::AddListChoice(const std::wstring& text, int hiddenValue) {
    m_listChoices.push_back({text, hiddenValue});
}

bool CPropertyEx::SelectListChoice(int hiddenValue) {
    for (const CPropertyListChoice& choice : m_listChoices) {
        if (choice.hiddenValue == hiddenValue) {
            SetValue(CPropertyValue(choice.text), CPropertyValue(choice.hiddenValue));
            return true;
        }
    }
    return false;
}

bool CPropertyEx::SetDependency(const std::wstring& rule, std::wstring* error) {
    CPropertyDependency parsed;
    if (!CPropertyDependency::Parse(rule, parsed, error)) return false;
    m_dependency = rule;
    return true;
}

std::map<std::wstring, bool> CPropertyEx::EvaluateDependency() const {
    long ownerValue = 0;
    if (m_dependency.empty() || !GetValueFor(1).ToLong(ownerValue)) return {};
    return EvaluateDependency(ownerValue);
}

std::map<std::wstring, bool> CPropertyEx::EvaluateDependency(long ownerValue) const {
    CPropertyDependency rule;
    // The stored text was checked when it was set, so it parses.
    CPropertyDependency::Parse(m_dependency, rule);
    return rule.Evaluate(ownerValue);
}

}  // namespace XimoGis::Data
