#include "framework/data/CPropertiesExXml.h"

#include "framework/data/CXmlText.h"

#include <boost/make_shared.hpp>

#include <array>
#include <utility>

namespace XimoGis::Data {

namespace {

constexpr std::array<std::pair<enmPropertyValueType, const wchar_t*>, 5> kTypeNames{{
    {enmPropertyValueType::Integer, L"integer"},
    {enmPropertyValueType::Long, L"long"},
    {enmPropertyValueType::Double, L"double"},
    {enmPropertyValueType::Text, L"text"},
    {enmPropertyValueType::ListIndex, L"listIndex"},
}};

std::wstring TypeName(enmPropertyValueType type) {
    for (const auto& [value, name] : kTypeNames)
        if (value == type) return name;
    return L"text";
}

bool ParseTypeName(const std::wstring& name, enmPropertyValueType& type) {
    for (const auto& [value, text] : kTypeNames) {
        if (name == text) {
            type = value;
            return true;
        }
    }
    return false;
}

void WriteValue(pugi::xml_node parent, const char* element, const CPropertyValue& value) {
    if (!value.IsNull()) CXmlText::SetAttribute(parent.append_child(element), "text", value.GetText());
}

CPropertyValue ReadValue(const pugi::xml_node& parent, const char* element) {
    const pugi::xml_node node = parent.child(element);
    if (!node) return {};
    return CPropertyValue(CXmlText::GetAttribute(node, "text"));
}

void WriteProperty(const CPropertyEx& property, pugi::xml_node parent) {
    pugi::xml_node node = parent.append_child("property");
    CXmlText::SetAttribute(node, "tag", property.GetTag());
    CXmlText::SetAttribute(node, "order", property.GetOrder());
    CXmlText::SetAttribute(node, "type", TypeName(property.GetValueType()));
    CXmlText::SetAttribute(node, "editor", property.GetEditorType());
    CXmlText::SetAttribute(node, "nameMsg", property.GetNameMsg());
    CXmlText::SetAttribute(node, "descriptionMsg", property.GetDescriptionMsg());
    CXmlText::SetAttribute(node, "picture", property.GetPictureReference());
    CXmlText::SetAttribute(node, "customControl", property.GetCustomControlId());
    CXmlText::SetAttribute(node, "dependency", property.GetDependency());
    CXmlText::SetFlag(node, "required", property.IsRequired());
    CXmlText::SetFlag(node, "readOnly", property.IsReadOnly());
    CXmlText::SetFlag(node, "visible", property.IsVisible());
    CXmlText::SetFlag(node, "enabled", property.IsEnabled());
    WriteValue(node, "value", property.GetValue());
    WriteValue(node, "hiddenValue", property.GetHiddenValue());
    WriteValue(node, "defaultValue", property.GetDefaultValue());
    WriteValue(node, "defaultHiddenValue", property.GetDefaultHiddenValue());
    for (const CPropertyListChoice& choice : property.GetListChoices()) {
        pugi::xml_node choiceNode = node.append_child("choice");
        CXmlText::SetAttribute(choiceNode, "text", choice.text);
        CXmlText::SetAttribute(choiceNode, "hiddenValue", choice.hiddenValue);
    }
}

bool ReadProperty(const pugi::xml_node& node, int categoryOrder, CPropertiesEx& properties, std::wstring* error) {
    const std::wstring tag = CXmlText::GetAttribute(node, "tag");
    if (tag.empty()) return CXmlText::Fail(error, L"a <property> of category " + std::to_wstring(categoryOrder) +
                                                      L" has no tag");
    const std::wstring where = L"property \"" + tag + L"\": ";
    enmPropertyValueType type = enmPropertyValueType::Text;
    const std::wstring typeName = CXmlText::GetAttribute(node, "type");
    if (!ParseTypeName(typeName, type))
        return CXmlText::Fail(error, where + L"unknown value type \"" + typeName + L"\"");
    if (!node.attribute("order")) return CXmlText::Fail(error, where + L"no order");

    int order = 0, editor = 0, nameMsg = 0, descriptionMsg = 0;
    bool required = false, readOnly = false, visible = true, enabled = true;
    std::wstring reason;
    const bool numbersRead = CXmlText::ReadInt(node, "order", 0, order, &reason) &&
                             CXmlText::ReadInt(node, "editor", eEditorNumber, editor, &reason) &&
                             CXmlText::ReadInt(node, "nameMsg", 0, nameMsg, &reason) &&
                             CXmlText::ReadInt(node, "descriptionMsg", 0, descriptionMsg, &reason) &&
                             CXmlText::ReadFlag(node, "required", false, required, &reason) &&
                             CXmlText::ReadFlag(node, "readOnly", false, readOnly, &reason) &&
                             CXmlText::ReadFlag(node, "visible", true, visible, &reason) &&
                             CXmlText::ReadFlag(node, "enabled", true, enabled, &reason);
    if (!numbersRead) return CXmlText::Fail(error, where + reason);

    auto property = boost::make_shared<CPropertyEx>(tag, type, editor, nameMsg, descriptionMsg);
    property->SetPictureReference(CXmlText::GetAttribute(node, "picture"));
    property->SetCustomControlId(CXmlText::GetAttribute(node, "customControl"));
    if (!property->SetDependency(CXmlText::GetAttribute(node, "dependency"), &reason))
        return CXmlText::Fail(error, where + reason);
    property->SetRequired(required);
    property->SetReadOnly(readOnly);
    property->SetVisible(visible);
    property->SetEnabled(enabled);
    property->SetValue(ReadValue(node, "value"), ReadValue(node, "hiddenValue"));
    property->SetDefaultValue(ReadValue(node, "defaultValue"));
    property->SetDefaultHiddenValue(ReadValue(node, "defaultHiddenValue"));
    for (const pugi::xml_node& choice : node.children("choice")) {
        if (!choice.attribute("hiddenValue")) return CXmlText::Fail(error, where + L"a <choice> has no hiddenValue");
        int hiddenValue = 0;
        if (!CXmlText::ReadInt(choice, "hiddenValue", 0, hiddenValue, &reason))
            return CXmlText::Fail(error, where + reason);
        property->AddListChoice(CXmlText::GetAttribute(choice, "text"), hiddenValue);
    }
    if (!properties.InsertProperty(categoryOrder, property, order))
        return CXmlText::Fail(error, where + L"the tag appears more than once");
    return true;
}

}  // namespace

void CPropertiesExXml::Write(const CPropertiesEx& properties, pugi::xml_node parent) {
    pugi::xml_node root = parent.append_child(kRootName);
    CXmlText::SetAttribute(root, "version", kVersion);
    for (const auto& category : properties.GetCategories()) {
        pugi::xml_node node = root.append_child("category");
        CXmlText::SetAttribute(node, "order", category->GetOrder());
        CXmlText::SetAttribute(node, "nameMsg", category->GetNameMsg());
        CXmlText::SetAttribute(node, "descriptionMsg", category->GetDescriptionMsg());
        for (const auto& property : category->GetProperties()) WriteProperty(*property, node);
    }
}

bool CPropertiesExXml::Read(const pugi::xml_node& root, CPropertiesEx& properties, std::wstring* error) {
    if (root.type() != pugi::node_element || std::string(root.name()) != kRootName)
        return CXmlText::Fail(error, L"expected a <ppsEx> element");
    int version = kVersion;
    std::wstring reason;
    if (!CXmlText::ReadInt(root, "version", kVersion, version, &reason))
        return CXmlText::Fail(error, L"ppsEx: " + reason);
    if (version != kVersion)
        return CXmlText::Fail(error, L"ppsEx: version " + std::to_wstring(version) + L" is not supported");
    for (const pugi::xml_node& node : root.children("category")) {
        if (!node.attribute("order")) return CXmlText::Fail(error, L"ppsEx: a <category> has no order");
        int order = 0, nameMsg = 0, descriptionMsg = 0;
        if (!CXmlText::ReadInt(node, "order", 0, order, &reason) ||
            !CXmlText::ReadInt(node, "nameMsg", 0, nameMsg, &reason) ||
            !CXmlText::ReadInt(node, "descriptionMsg", 0, descriptionMsg, &reason))
            return CXmlText::Fail(error, L"ppsEx: " + reason);
        if (!properties.AddCategory(order, nameMsg, descriptionMsg))
            return CXmlText::Fail(error, L"ppsEx: category order " + std::to_wstring(order) + L" appears twice");
        for (const pugi::xml_node& propertyNode : node.children("property")) {
            if (!ReadProperty(propertyNode, order, properties, &reason)) return CXmlText::Fail(error, L"ppsEx: " + reason);
        }
    }
    return true;
}

}  // namespace XimoGis::Data
