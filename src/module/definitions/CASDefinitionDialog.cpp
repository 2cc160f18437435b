#include "module/definitions/CASDefinitionDialog.h"

#include "module/components/IASComponentInterface.h"
#include "module/definitions/CASDefinition.h"
#include "module/definitions/CASRepository.h"
#include "module/manager/CASManager.h"

#include "host/input/acedInput.h"

namespace XimoGis::AssemblySchemes {

using Data::CPropertyValue;
using Data::enmPropertyValueType;

namespace {

// Whether `value` can be read as the property's value type.
bool Fits(enmPropertyValueType type, const CPropertyValue& value) {
    double number = 0.0;
    int whole = 0;
    long wide = 0;
    switch (type) {
        case enmPropertyValueType::Double: return value.ToDouble(number);
        case enmPropertyValueType::Integer: return value.ToInt(whole);
        case enmPropertyValueType::Long: return value.ToLong(wide);
        default: return true;
    }
}

}  // namespace

CASDefinitionDialog::CASDefinitionDialog(CASDefinition* definition, CASRepository* repository, enmMode mode,
                                         const CASDefinitionEdit* edit)
    : m_definition(definition), m_repository(repository), m_mode(mode), m_edit(edit) {}

int CASDefinitionDialog::DoModal() {
    m_error.clear();
    if (!m_definition) return 0;
    CASDefinition work(m_definition);
    if (!Apply(work) || !Confirmed(work.GetName())) return 0;
    work.MakeDeepCopy(*m_definition);
    return 1;
}

bool CASDefinitionDialog::Confirmed(const std::wstring& name) {
    acedInitGet(0, L"OK Cancel");
    ACHAR answer[133] = L"";
    const std::wstring prompt = L"\nSave the definition \"" + name + L"\"? [OK/Cancel] <OK>: ";
    const int status = acedGetKword(prompt.c_str(), answer, 133);
    return status == RTNONE || (status == RTNORM && std::wstring(answer) == L"OK");
}

bool CASDefinitionDialog::Apply(CASDefinition& work) {
    if (!ApplyName(work)) return false;
    return !m_edit || (ApplyProperties(work) && RemoveComponents(work) && AddComponents(work));
}

bool CASDefinitionDialog::Refuse(const std::wstring& reason) {
    m_error = L"Definition \"" + m_definition->GetName() + L"\": " + reason;
    return false;
}

bool CASDefinitionDialog::ApplyName(CASDefinition& work) {
    if (m_edit && !m_edit->name.empty()) work.SetName(m_edit->name);
    if (work.GetName().empty()) return Refuse(L"a definition needs a name");
    if (m_repository) {
        for (const CRepositoryItem* item : m_repository->GetRepositoryItems()) {
            if (item != m_definition && item->GetName() == work.GetName())
                return Refuse(L"the name \"" + work.GetName() + L"\" is taken by another definition");
        }
    }
    return true;
}

bool CASDefinitionDialog::ApplyProperties(CASDefinition& work) {
    for (const auto& [tag, text] : m_edit->properties) {
        const auto property = work.GetProperties()->GetProperty(tag);
        if (!property) return Refuse(L"there is no property \"" + tag + L"\"");
        const CPropertyValue value(text);
        if (!Fits(property->GetValueType(), value))
            return Refuse(L"\"" + text + L"\" is not a valid value of \"" + tag + L"\"");
        work.GetProperties()->SetPropertyValue(tag, value);
    }
    // The drawing scale is kept in the property; the scale object follows it, as on reading.
    const double scale = work.GetDblProperty(L"LS_SCALE_X", work.GetScale()->x(), 1);
    work.GetScale()->SetScaleX(scale);
    work.GetScale()->SetScaleY(scale);
    return true;
}

bool CASDefinitionDialog::RemoveComponents(CASDefinition& work) {
    for (const std::wstring& internalId : m_edit->removedComponents) {
        if (!work.GetComponentByInternalId(internalId.c_str()))
            return Refuse(L"there is no component \"" + internalId + L"\"");
        for (const auto& [id, component] : work.GetComponents()) {
            if (component->GetParentComponentId() == internalId)
                return Refuse(L"component \"" + internalId + L"\" holds component \"" + id + L"\"");
        }
        work.RemoveComponent(internalId.c_str());
    }
    return true;
}

bool CASDefinitionDialog::AddComponents(CASDefinition& work) {
    for (const CASDefinitionEdit::NewComponent& added : m_edit->addedComponents) {
        const auto type = CASManager::Instance()->GetASComponentById(added.typeId.c_str());
        if (!type) return Refuse(L"there is no component type \"" + added.typeId + L"\"");
        std::wstring parentId;
        for (const auto& [id, component] : work.GetComponents()) {
            // Components without draw data have no type to compare; they are not given one here.
            if (!component->HasDrawData()) continue;
            if (component->GetId() == added.typeId && !type->GetAllowMultipleInstances())
                return Refuse(L"it already holds a component of type \"" + added.typeId + L"\"");
            if (!type->GetParentId().empty() && parentId.empty() && component->GetId() == type->GetParentId())
                parentId = id;
        }
        if (!type->GetParentId().empty() && parentId.empty())
            return Refuse(L"a component of type \"" + added.typeId + L"\" goes under a component of type \"" +
                          type->GetParentId() + L"\", which it does not hold");
        const auto component = type->CreateComponentData();
        component->SetXOffset(added.offx);
        component->SetYOffset(added.offy);
        component->SetParentComponentId(parentId);
        work.AddComponent(component);
    }
    return true;
}

}  // namespace XimoGis::AssemblySchemes
