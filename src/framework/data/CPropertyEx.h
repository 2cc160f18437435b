#pragma once
// One tagged property of a property set: its values, how the property editor shows it, and the
// rule by which its value switches other properties on and off.

#include "framework/data/CPropertyValue.h"

#include <map>
#include <string>
#include <vector>

namespace XimoGis::Data {

// How the value is interpreted; a list index holds the chosen entry's text as value and the
// entry's integer as hidden value.
enum class enmPropertyValueType { Integer, Long, Double, Text, ListIndex };

// Codes of the property editor that shows a property. Properties store the code as an int, so codes
// of editors not named here pass through unchanged.
enum enmPropertyEditorType : int {
    eEditorNone = -1,  // not edited (e.g. data kept for a custom dialog)
    eEditorNumber = 0,  // number or free text
    eEditorList = 1,  // list with forced choice
    eEditorColor = 6,
    eEditorCheckBox = 7,
    eEditorCustomDialog = 8,  // opens the custom dialog registered under the custom control id
    eEditorLineType = 10,
    eEditorTextStyle = 11,
    eEditorDimensionStyle = 14,
};

// One entry of a list property: the text shown and the integer stored as hidden value.
struct CPropertyListChoice {
    std::wstring text;
    int hiddenValue = 0;
    bool operator==(const CPropertyListChoice&) const = default;
};

class CPropertyEx {
public:
    CPropertyEx() = default;
    CPropertyEx(std::wstring tag, enmPropertyValueType valueType, int editorType = eEditorNumber, int nameMsg = 0,
                int descriptionMsg = 0);

    // The tag identifies the property within its set and never changes.
    const std::wstring& GetTag() const { return m_tag; }
    enmPropertyValueType GetValueType() const { return m_valueType; }
    void SetValueType(enmPropertyValueType type) { m_valueType = type; }

    // The value is what the user sees, the hidden value what is stored for programs to read
    // (readers with flag 1 take the hidden value). For every type but a list the two are the same
    // thing, so SetValue sets both; for a list it sets the shown text and, when the text is one of
    // the choices, the hidden value to that choice's integer. SetHiddenValue sets only the hidden
    // value (e.g. a scale computed for drawing while the shown value stays as the user typed it).
    const CPropertyValue& GetValue() const { return m_value; }
    const CPropertyValue& GetHiddenValue() const { return m_hiddenValue; }
    void SetValue(const CPropertyValue& value);
    void SetValue(const CPropertyValue& value, const CPropertyValue& hiddenValue);
    void SetHiddenValue(const CPropertyValue& hiddenValue) { m_hiddenValue = hiddenValue; }
    // The value a reader asks for: flag 0 the shown value, any other flag the hidden value, or the
    // shown value when the hidden one is null.
    const CPropertyValue& GetValueFor(int flag) const;

    const CPropertyValue& GetDefaultValue() const { return m_defaultValue; }
    const CPropertyValue& GetDefaultHiddenValue() const { return m_defaultHiddenValue; }
    void SetDefaultValue(const CPropertyValue& value) { m_defaultValue = value; }
    void SetDefaultHiddenValue(const CPropertyValue& value) { m_defaultHiddenValue = value; }
    // A new property starts at its default: sets default, default hidden, value and hidden value.
    void SetDefaultAndValue(const CPropertyValue& value) { SetDefaultAndValue(value, value); }
    void SetDefaultAndValue(const CPropertyValue& value, const CPropertyValue& hiddenValue);
    void ResetToDefault();

    int GetEditorType() const { return m_editorType; }
    void SetEditorType(int editorType) { m_editorType = editorType; }
    int GetNameMsg() const { return m_nameMsg; }
    void SetNameMsg(int msg) { m_nameMsg = msg; }
    int GetDescriptionMsg() const { return m_descriptionMsg; }
    void SetDescriptionMsg(int msg) { m_descriptionMsg = msg; }
    // Name of the picture that illustrates the property in the editor; empty for none.
    const std::wstring& GetPictureReference() const { return m_pictureReference; }
    void SetPictureReference(const std::wstring& reference) { m_pictureReference = reference; }
    // Id under which the custom dialog that edits this property is registered; empty for none.
    const std::wstring& GetCustomControlId() const { return m_customControlId; }
    void SetCustomControlId(const std::wstring& id) { m_customControlId = id; }

    bool IsRequired() const { return m_required; }
    void SetRequired(bool required) { m_required = required; }
    bool IsReadOnly() const { return m_readOnly; }
    void SetReadOnly(bool readOnly) { m_readOnly = readOnly; }
    // Invisible properties carry data for programs and dialogs and never show in the editor.
    bool IsVisible() const { return m_visible; }
    void SetVisible(bool visible) { m_visible = visible; }
    // Switched by other properties' dependency rules; a disabled property shows but cannot be edited.
    bool IsEnabled() const { return m_enabled; }
    void SetEnabled(bool enabled) { m_enabled = enabled; }

    // Position within its category; given by the property set when the property is added.
    int GetOrder() const { return m_order; }

    const std::vector<CPropertyListChoice>& GetListChoices() const { return m_listChoices; }
    void AddListChoice(const std::wstring& text, int hiddenValue);
    void ClearListChoices() { m_listChoices.clear(); }
    // Makes the choice with this hidden integer the value; false (nothing changed) when there is none.
    bool SelectListChoice(int hiddenValue);

    // The dependency rule text (see CPropertyDependency). A malformed rule is refused: returns false
    // and keeps the old rule, with the reason in `error` when given.
    const std::wstring& GetDependency() const { return m_dependency; }
    bool SetDependency(const std::wstring& rule, std::wstring* error = nullptr);
    // What the current value (as read with flag 1) enables (true) or disables (false); empty when
    // there is no rule or the value is not an integer.
    std::map<std::wstring, bool> EvaluateDependency() const;
    std::map<std::wstring, bool> EvaluateDependency(long ownerValue) const;

    bool operator==(const CPropertyEx&) const = default;

private:
    friend class CPropertyCategoryEx;

    std::wstring m_tag;
    enmPropertyValueType m_valueType = enmPropertyValueType::Text;
    CPropertyValue m_value;
    CPropertyValue m_hiddenValue;
    CPropertyValue m_defaultValue;
    CPropertyValue m_defaultHiddenValue;
    int m_editorType = eEditorNumber;
    int m_nameMsg = 0;
    int m_descriptionMsg = 0;
    std::wstring m_pictureReference;
    std::wstring m_customControlId;
    std::wstring m_dependency;
    bool m_required = false;
    bool m_readOnly = false;
    bool m_visible = true;
    bool m_enabled = true;
    int m_order = 0;
    std::vector<CPropertyListChoice> m_listChoices;
};

}  // namespace XimoGis::Data
