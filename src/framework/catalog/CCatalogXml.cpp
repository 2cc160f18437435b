#include "framework/catalog/CCatalogXml.h"

#include "framework/catalog/CatalogTags.h"
#include "framework/data/CXmlText.h"
#include "framework/utility/CAtomicFile.h"
#include "framework/utility/CFilePath.h"
#include "host/base/AcString.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cstring>
#include <optional>
#include <sstream>

namespace XimoGis::Data {

namespace {

const char* const kVersion = "1";

std::optional<CPropertyValue> Attribute(const pugi::xml_node& node, const char* name) {
    const pugi::xml_attribute attribute = node.attribute(name);
    if (!attribute) return std::nullopt;
    return CPropertyValue(acutUtf8ToWchar(attribute.value()));
}

// Gives a property the values of one <property> element; the reader and the writer both go
// through here, so that what is written reads back the same.
void ApplyValues(CPropertyEx& property, const CPropertyValue& value, const std::optional<CPropertyValue>& hidden) {
    property.SetValue(value);
    if (hidden) property.SetHiddenValue(*hidden);
}

class Reader {
public:
    Reader(const std::wstring& file, const std::string& bytes, std::wstring& error)
        : m_file(file), m_bytes(bytes), m_error(error) {}

    boost::shared_ptr<CCatalog> Read() {
        pugi::xml_document document;
        const pugi::xml_parse_result parsed =
            document.load_buffer(m_bytes.data(), m_bytes.size(), pugi::parse_default, pugi::encoding_utf8);
        if (!parsed) {
            Fail(parsed.offset, L"malformed XML: " + acutUtf8ToWchar(parsed.description()));
            return {};
        }
        const pugi::xml_node root = document.document_element();
        if (std::strcmp(root.name(), "catalog") != 0) {
            Fail(root, L"the root element must be <catalog>, not <" + acutUtf8ToWchar(root.name()) + L">");
            return {};
        }
        if (std::strcmp(root.attribute("version").value(), kVersion) != 0) {
            Fail(root, L"version \"" + CXmlText::GetAttribute(root, "version") + L"\" is not supported (only 1)");
            return {};
        }
        auto catalog = boost::make_shared<CCatalog>(CXmlText::GetAttribute(root, "name"));
        if (catalog->GetName().empty()) {
            Fail(root, L"the catalog has no name");
            return {};
        }
        // Templates first, wherever they stand, since the items are made from them.
        for (const pugi::xml_node& node : root.children("template")) {
            if (!ReadTemplate(node, *catalog)) return {};
        }
        for (const pugi::xml_node& node : root.children()) {
            if (node.type() != pugi::node_element || std::strcmp(node.name(), "template") == 0) continue;
            if (!ReadItem(node, *catalog, nullptr)) return {};
        }
        return catalog;
    }

private:
    bool Fail(std::ptrdiff_t offset, const std::wstring& what) {
        const auto size = static_cast<std::ptrdiff_t>(m_bytes.size());
        const auto end = m_bytes.begin() + std::clamp<std::ptrdiff_t>(offset, 0, size);
        const auto line = std::count(m_bytes.begin(), end, '\n') + 1;
        m_error = L"Catalog file \"" + m_file + L"\" (line " + std::to_wstring(line) + L"): " + what;
        return false;
    }

    bool Fail(const pugi::xml_node& node, const std::wstring& what) { return Fail(node.offset_debug(), what); }

    bool ReadTemplate(const pugi::xml_node& node, CCatalog& catalog) {
        auto itemTemplate = boost::make_shared<CCatalogItemTemplate>(CXmlText::GetAttribute(node, "itemType"));
        if (itemTemplate->GetItemType().empty()) return Fail(node, L"a <template> needs an itemType");
        std::wstring why;
        if (!itemTemplate->GetProperties().ReadXmlNode(node.child("ppsEx"), &why))
            return Fail(node, L"the template \"" + itemTemplate->GetItemType() + L"\": " + why);
        catalog.SetItemTemplate(itemTemplate);
        return true;
    }

    bool ReadItem(const pugi::xml_node& node, CCatalog& catalog, CCatalogItem* parent) {
        const bool isGroup = std::strcmp(node.name(), "group") == 0;
        if (!isGroup && std::strcmp(node.name(), "item") != 0)
            return Fail(node, L"unexpected <" + acutUtf8ToWchar(node.name()) + L"> (expected <group> or <item>)");
        const std::wstring type = node.attribute("type") ? CXmlText::GetAttribute(node, "type")
                                  : isGroup              ? std::wstring()
                                                         : std::wstring(CatalogTags::kElementBlockType);
        std::wstring why;
        CCatalogItem* item = catalog.AddItem(parent, CXmlText::GetAttribute(node, "id"),
                                             CXmlText::GetAttribute(node, "name"), isGroup, type, why);
        if (!item) return Fail(node, why);
        for (const pugi::xml_node& child : node.children()) {
            if (child.type() != pugi::node_element) continue;
            const std::string name = child.name();
            if (name == "property") {
                if (!ReadProperty(child, *item)) return false;
            } else if (name == "ppsEx") {
                if (!item->GetProperties().ReadXmlNode(child, &why))
                    return Fail(child, L"item \"" + item->GetName() + L"\": " + why);
            } else if (!isGroup) {
                return Fail(child, L"unexpected <" + acutUtf8ToWchar(child.name()) + L"> in item \"" +
                                       item->GetName() + L"\" (only groups hold items)");
            } else if (!ReadItem(child, catalog, item)) {
                return false;
            }
        }
        return true;
    }

    bool ReadProperty(const pugi::xml_node& node, CCatalogItem& item) {
        const std::wstring tag = CXmlText::GetAttribute(node, "tag");
        const auto property = item.GetProperty(tag);
        if (!property)
            return Fail(node, L"item \"" + item.GetName() + L"\" has no property \"" + tag + L"\" (item type \"" +
                                  item.GetItemType() + L"\")");
        std::optional<CPropertyValue> hidden = Attribute(node, "hidden");
        if (!hidden && std::strcmp(node.attribute("hiddenIsNull").value(), "1") == 0) hidden = CPropertyValue();
        ApplyValues(*property, Attribute(node, "value").value_or(CPropertyValue()), hidden);
        return true;
    }

    const std::wstring& m_file;
    const std::string& m_bytes;
    std::wstring& m_error;
};

// Writes the item's values as <property> elements over its template's defaults, or, when the
// item's properties do not fit its template, the whole set as <ppsEx>.
void WriteProperties(pugi::xml_node node, const CCatalog& catalog, const CCatalogItem& item) {
    CPropertiesEx rebuilt;
    if (const auto itemTemplate = catalog.GetItemTemplate(item.GetItemType()))
        itemTemplate->GetProperties().MakeDeepCopy(rebuilt);
    pugi::xml_document values;
    bool fits = true;
    for (const auto& category : item.GetProperties().GetCategories()) {
        for (const auto& property : category->GetProperties()) {
            const auto base = rebuilt.GetProperty(property->GetTag());
            if (!base) {
                fits = false;
                break;
            }
            if (base->GetValue() == property->GetValue() && base->GetHiddenValue() == property->GetHiddenValue())
                continue;
            pugi::xml_node element = values.append_child("property");
            CXmlText::SetAttribute(element, "tag", property->GetTag());
            if (!property->GetValue().IsNull())
                CXmlText::SetAttribute(element, "value", property->GetValue().GetText());
            CPropertyEx shownOnly = *base;
            ApplyValues(shownOnly, property->GetValue(), std::nullopt);
            std::optional<CPropertyValue> hidden;
            if (shownOnly.GetHiddenValue() != property->GetHiddenValue()) {
                hidden = property->GetHiddenValue();
                if (hidden->IsNull())
                    CXmlText::SetAttribute(element, "hiddenIsNull", 1L);
                else
                    CXmlText::SetAttribute(element, "hidden", hidden->GetText());
            }
            ApplyValues(*base, property->GetValue(), hidden);
        }
        if (!fits) break;
    }
    if (fits && rebuilt == item.GetProperties()) {
        for (const pugi::xml_node& element : values.children()) node.append_copy(element);
    } else {
        item.GetProperties().WriteXmlNode(node);
    }
}

void WriteItems(pugi::xml_node parent, const CCatalog& catalog,
                const std::vector<boost::shared_ptr<CCatalogItem>>& items) {
    for (const auto& item : items) {
        pugi::xml_node node = parent.append_child(item->IsGroup() ? "group" : "item");
        CXmlText::SetAttribute(node, "id", item->GetId());
        CXmlText::SetAttribute(node, "name", item->GetName());
        if (!item->IsGroup() || !item->GetItemType().empty()) CXmlText::SetAttribute(node, "type", item->GetItemType());
        WriteProperties(node, catalog, *item);
        WriteItems(node, catalog, item->GetChildren());
    }
}

}  // namespace

boost::shared_ptr<CCatalog> CCatalogXml::Read(const std::wstring& file, std::wstring& error) {
    std::string bytes;
    if (!Utility::CFilePath::ReadFile(file, bytes)) {
        error = L"Catalog file \"" + file + L"\": the file cannot be read";
        return {};
    }
    return Reader(file, bytes, error).Read();
}

std::string CCatalogXml::ToText(const CCatalog& catalog) {
    pugi::xml_document document;
    pugi::xml_node root = document.append_child("catalog");
    CXmlText::SetAttribute(root, "name", catalog.GetName());
    root.append_attribute("version").set_value(kVersion);
    for (const auto& [itemType, itemTemplate] : catalog.GetItemTemplates()) {
        pugi::xml_node node = root.append_child("template");
        CXmlText::SetAttribute(node, "itemType", itemType);
        itemTemplate->GetProperties().WriteXmlNode(node);
    }
    WriteItems(root, catalog, catalog.GetRootItems());
    std::ostringstream out;
    document.save(out, "  ", pugi::format_default, pugi::encoding_utf8);
    return out.str();
}

bool CCatalogXml::Write(const CCatalog& catalog, const std::wstring& file, std::wstring& error) {
    return Utility::CAtomicFile::Write(file, ToText(catalog), error);
}

}  // namespace XimoGis::Data
