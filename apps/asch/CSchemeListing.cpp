#include "CSchemeListing.h"

#include "host/base/AcString.h"

#include <rapidjson/ostreamwrapper.h>
#include <rapidjson/prettywriter.h>

#include <algorithm>
#include <iomanip>
#include <sstream>
#include <vector>

namespace XimoGis::Asch {

using AssemblySchemes::CASAudit;
using AssemblySchemes::CASElementInstance;
using AssemblySchemes::CASInstance;
using AssemblySchemes::CASInstanceStorage;

namespace {

using Writer = rapidjson::PrettyWriter<rapidjson::OStreamWrapper>;

std::string Utf8(const std::wstring& text) { return acutWcharToUtf8(text); }
std::string Handle(AcDbObjectId id) { return id.isNull() ? std::string() : Utf8(CASAudit::FormatHandle(id.handle())); }
std::string Number(double value) {
    std::ostringstream text;
    text << value;
    return text.str();
}

void Text(Writer& json, const std::string& text) {
    json.String(text.c_str(), static_cast<rapidjson::SizeType>(text.size()));
}
void Text(Writer& json, const std::wstring& text) { Text(json, Utf8(text)); }
void Key(Writer& json, const char* key) { json.Key(key); }

void Handles(Writer& json, const AcDbObjectIdArray& ids) {
    json.StartArray();
    for (const AcDbObjectId& id : ids) Text(json, Handle(id));
    json.EndArray();
}

void Element(Writer& json, CASElementInstance& element) {
    json.StartObject();
    Key(json, "id");
    Text(json, element.GetElementId());
    Key(json, "catalog");
    Text(json, element.GetCatalogId());
    Key(json, "provider");
    Text(json, element.GetTypeProviderId());
    Key(json, "position");
    json.Int(element.GetElementNumber());
    Key(json, "ignored");
    json.Bool(element.IsElementIgnored() != 0);
    Key(json, "referred");
    Text(json, element.GetReferredElement());
    Key(json, "dataHolder");
    Text(json, Handle(element.GetEntityHolder()));
    Key(json, "entities");
    Handles(json, *element.GetObjects());
    json.EndObject();
}

void Scheme(Writer& json, const CASInstance& sheet) {
    json.StartObject();
    Key(json, "id");
    Text(json, sheet.GetInstanceId());
    Key(json, "definition");
    Text(json, sheet.GetDefinitionId());
    Key(json, "node");
    Text(json, sheet.GetRefNode());
    AcGePoint3d base;
    sheet.GetBasePoint(base);
    Key(json, "basePoint");
    json.StartArray();
    json.Double(base.x);
    json.Double(base.y);
    json.Double(base.z);
    json.EndArray();
    Key(json, "width");
    json.Double(sheet.GetWidth());
    Key(json, "height");
    json.Double(sheet.GetHeight());
    Key(json, "generalEntities");
    Handles(json, AcDbObjectIdArray{sheet.GetId(), sheet.GetSecondGeneralEntity(), sheet.GetThirdGeneralEntity()});
    Key(json, "components");
    json.StartArray();
    for (const auto& [componentId, ids] : sheet.GetComponentEntities()) {
        json.StartObject();
        Key(json, "id");
        Text(json, componentId);
        Key(json, "entities");
        Handles(json, *ids);
        json.EndObject();
    }
    json.EndArray();
    Key(json, "elements");
    json.StartArray();
    for (const auto& [elementId, element] : sheet.GetElementInstances()) Element(json, *element);
    json.EndArray();
    json.EndObject();
}

// Columns of the element table: id, catalog item, provider, position, ignored.
void PrintElements(const CASInstance& sheet, std::ostream& out) {
    std::vector<std::vector<std::string>> rows = {{"ID", "CATALOG", "PROVIDER", "POS", "IGNORED"}};
    for (const auto& [elementId, element] : sheet.GetElementInstances()) {
        const std::string provider = Utf8(element->GetTypeProviderId());
        rows.push_back({Utf8(elementId), Utf8(element->GetCatalogId()), provider.empty() ? "-" : provider,
                        std::to_string(element->GetElementNumber()), element->IsElementIgnored() ? "yes" : "no"});
    }
    std::vector<std::size_t> widths(rows.front().size(), 0);
    for (const auto& row : rows)
        for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
    for (const auto& row : rows) {
        out << "    ";
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (i + 1 < row.size()) out << std::left << std::setw(static_cast<int>(widths[i] + 2)) << row[i];
            else out << row[i];
        }
        out << '\n';
    }
}

}  // namespace

void CSchemeListing::PrintTable(const CASInstanceStorage& storage, std::ostream& out) {
    std::size_t elements = 0;
    for (const auto& [guid, sheet] : storage.GetASRegistry()) {
        AcGePoint3d base;
        sheet->GetBasePoint(base);
        const std::string node = Utf8(sheet->GetRefNode());
        out << "scheme " << Utf8(guid) << '\n'
            << "  definition " << Utf8(sheet->GetDefinitionId()) << "  node " << (node.empty() ? "-" : node) << '\n'
            << "  base point " << Number(base.x) << ", " << Number(base.y) << ", " << Number(base.z) << "  size "
            << Number(sheet->GetWidth()) << " x " << Number(sheet->GetHeight()) << '\n'
            << "  entities:";
        const char* separator = " ";
        for (const auto& [componentId, ids] : sheet->GetComponentEntities()) {
            out << separator << Utf8(componentId) << ' ' << ids->length();
            separator = ", ";
        }
        out << (sheet->GetComponentEntities().empty() ? " none\n" : "\n");
        if (sheet->GetElementInstances().empty()) {
            out << "  elements: none\n";
        } else {
            out << "  elements:\n";
            PrintElements(*sheet, out);
        }
        elements += sheet->GetElementInstances().size();
    }
    out << storage.GetASRegistry().size() << " scheme(s), " << elements << " element(s)\n";
}

void CSchemeListing::PrintJson(const CASInstanceStorage& storage, const std::wstring& drawing, int systemId,
                               std::ostream& out) {
    rapidjson::OStreamWrapper stream(out);
    Writer json(stream);
    json.StartObject();
    Key(json, "drawing");
    Text(json, drawing);
    Key(json, "system");
    if (systemId) json.Int(systemId);
    else json.Null();
    Key(json, "schemes");
    json.StartArray();
    for (const auto& [guid, sheet] : storage.GetASRegistry()) Scheme(json, *sheet);
    json.EndArray();
    Key(json, "problems");
    json.StartArray();
    for (const auto& problem : storage.GetProblems()) {
        json.StartObject();
        Key(json, "code");
        json.Int(problem.code);
        Key(json, "name");
        Text(json, std::wstring(CASAudit::GetCodeName(problem.code)));
        Key(json, "handle");
        Text(json, CASAudit::FormatHandle(problem.handle));
        Key(json, "message");
        Text(json, problem.message);
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
    out << '\n';
}

}  // namespace XimoGis::Asch
