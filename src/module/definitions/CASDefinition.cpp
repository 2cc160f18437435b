#include "module/definitions/CASDefinition.h"

#include "module/components/IASComponentInterface.h"
#include "module/manager/CASManager.h"
#include "module/support/CASFormat.h"
#include "module/support/CASXmlCursor.h"
#include "module/support/CASXmlEscape.h"

#include "framework/utility/CUtility.h"

#include <boost/make_shared.hpp>

#include <sstream>

namespace XimoGis::AssemblySchemes {

using Data::CPropertiesEx;
using Data::CPropertyEx;
using Data::enmPropertyValueType;
using Longitudinal::CLSScale;

namespace {

constexpr int kSheetCategory = 1;

void AddSheetProperty(CPropertiesEx& properties, const wchar_t* tag, enmPropertyValueType type,
                      const Data::CPropertyValue& value, int editor, int nameMsg, int descriptionMsg,
                      const wchar_t* picture) {
    auto property = boost::make_shared<CPropertyEx>(tag, type, editor, nameMsg, descriptionMsg);
    property->SetDefaultAndValue(value);
    property->SetRequired(true);
    if (picture) property->SetPictureReference(picture);
    properties.AddProperty(kSheetCategory, property);
}

}  // namespace

CASDefinition::CASDefinition() : m_scale(boost::make_shared<CLSScale>(0.1, 0.1, 0)) {
    m_properties = CreateDefaultProperties();
}

CASDefinition::CASDefinition(const CASDefinition* source) : CASDefinition() {
    if (source) source->MakeDeepCopy(*this);
}

boost::shared_ptr<CPropertiesEx> CASDefinition::CreateDefaultProperties() const {
    auto properties = boost::make_shared<CPropertiesEx>();
    properties->AddCategory(kSheetCategory, 4712, 4712);
    // The scale is the one property whose default follows the definition.
    AddSheetProperty(*properties, L"LS_SCALE_X", enmPropertyValueType::Double, m_scale->x(), Data::eEditorNumber,
                     8324, 8324, L"AS_SCALE_X");
    AddSheetProperty(*properties, L"ASPW", enmPropertyValueType::Double, 210.0, Data::eEditorNumber, 8122, 8123,
                     nullptr);
    // Height's name and description messages come in the reverse order of the width's.
    AddSheetProperty(*properties, L"ASPH", enmPropertyValueType::Double, 297.0, Data::eEditorNumber, 8125, 8124,
                     nullptr);
    AddSheetProperty(*properties, L"ASDPF", enmPropertyValueType::Integer, 1, Data::eEditorCheckBox, 8126, 8126,
                     nullptr);
    AddSheetProperty(*properties, L"ASFLC", enmPropertyValueType::Integer, 0, Data::eEditorColor, 8127, 8127,
                     nullptr);
    AddSheetProperty(*properties, L"ASFLLT", enmPropertyValueType::Text, L"Continuous", Data::eEditorLineType, 8131,
                     8131, L"ASFLLT");
    return properties;
}

void CASDefinition::MakeDeepCopy(CASDefinition& target) const {
    if (&target == this) return;
    static_cast<CRepositoryItem&>(target) = *this;
    target.m_scale = boost::make_shared<CLSScale>(*m_scale);
    target.m_properties = boost::make_shared<CPropertiesEx>();
    if (m_properties) m_properties->MakeDeepCopy(*target.m_properties);
    target.m_components.clear();
    for (const auto& [id, component] : m_components) target.AddComponent(component);
}

void CASDefinition::AddComponent(const boost::shared_ptr<CASComponentData>& component) {
    if (!component) return;
    if (component->GetInternalId().empty()) component->SetInternalId(Utility::CUtility::CreateGUID());
    m_components.emplace(component->GetInternalId(), component);
}

void CASDefinition::RemoveComponent(const wchar_t* internalId) {
    if (internalId) m_components.erase(internalId);
}

boost::shared_ptr<CASComponentData> CASDefinition::GetComponentByInternalId(const wchar_t* internalId) const {
    if (!internalId) return {};
    const auto found = m_components.find(internalId);
    return found == m_components.end() ? boost::shared_ptr<CASComponentData>() : found->second;
}

double CASDefinition::GetDblProperty(const std::wstring& tag, double defaultValue, int flag) const {
    return m_properties ? m_properties->GetDblProperty(tag, defaultValue, flag) : defaultValue;
}

int CASDefinition::GetIntProperty(const std::wstring& tag, int defaultValue, int flag) const {
    return m_properties ? m_properties->GetIntProperty(tag, defaultValue, flag) : defaultValue;
}

long CASDefinition::GetLngProperty(const std::wstring& tag, long defaultValue, int flag) const {
    return m_properties ? m_properties->GetLngProperty(tag, defaultValue, flag) : defaultValue;
}

std::wstring CASDefinition::GetStrProperty(const std::wstring& tag, const std::wstring& defaultValue,
                                           int flag) const {
    return m_properties ? m_properties->GetStrProperty(tag, defaultValue, flag) : defaultValue;
}

double CASDefinition::GetPaperWidth() const { return GetDblProperty(L"ASPW", 210.0, 1); }

double CASDefinition::GetPaperHeight() const { return GetDblProperty(L"ASPH", 297.0, 1); }

int CASDefinition::DependsOn(const wchar_t* name, CRepositoryItem* item) {
    for (const auto& [id, component] : m_components) {
        if (!component->HasDrawData()) continue;
        const auto type = CASManager::Instance()->GetASComponentById(component->GetId().c_str());
        if (!type) continue;
        if (const int depends = type->DependsOn(this, component.get(), name, item)) return depends;
    }
    return 0;
}

void CASDefinition::GetXML(std::wostream& out) const {
    out << CASFormat::Format(
        L"<asDefinition id=\"%ls\" name=\"%ls\" entType=\"%d\" topologyType=\"%d\" topologyFunction=\"%d\" "
        L"readOnly=\"%d\" hidden=\"%d\" scale=\"%ls\">",
        GetId().c_str(), CASXmlEscape::EncodeAttribute(GetName()).c_str(), GetEntType(), GetTopologyType(),
        GetTopologyFunction(), GetReadOnly(), GetHidden(), CASXmlEscape::EncodeAttribute(m_scale->Serialize()).c_str());
    out << L"<cmps>";
    for (const auto& [id, component] : m_components) component->GetXML(out);
    out << L"</cmps>";
    if (m_properties) out << m_properties->GetXML();
    out << L"</asDefinition>";
}

std::wstring CASDefinition::GetXML() const {
    std::wostringstream out;
    GetXML(out);
    return out.str();
}

int CASDefinition::ParseXML(const wchar_t* xml) {
    CASXmlCursor cursor;
    cursor.SetDoc(xml);
    if (!cursor.FindElem(L"asDefinition")) return 0;
    SetId(cursor.GetAttrib("id"));
    SetName(cursor.GetAttrib("name"));
    SetEntType(cursor.GetIntAttrib("entType"));
    SetTopologyType(cursor.GetIntAttrib("topologyType"));
    SetTopologyFunction(cursor.GetIntAttrib("topologyFunction"));
    SetReadOnly(cursor.GetIntAttrib("readOnly"));
    SetHidden(cursor.GetIntAttrib("hidden"));
    m_scale->Deserialize(cursor.GetAttrib("scale").c_str());

    cursor.IntoElem();
    if (cursor.FindElem(L"cmps")) {
        cursor.IntoElem();
        while (cursor.FindElem(L"asComData")) {
            auto component = boost::make_shared<CASComponentData>();
            if (component->ParseXML(cursor.GetSubDoc().c_str())) AddComponent(component);
        }
        cursor.OutOfElem();
    }

    m_properties = boost::make_shared<CPropertiesEx>();
    if (cursor.FindElem(L"ppsEx")) m_properties->ParseXML(cursor.GetSubDoc().c_str());

    const double scale = m_properties->GetDblProperty(L"LS_SCALE_X", 1.0, 1);
    m_scale->SetScaleX(scale);
    m_scale->SetScaleY(scale);
    return 1;
}

}  // namespace XimoGis::AssemblySchemes
