#include "framework/topology/CGeoJsonLayerReader.h"

#include "framework/topology/CNetworkLayers.h"
#include "framework/utility/CFilePath.h"
#include "host/base/AcString.h"

#include <rapidjson/document.h>
#include <rapidjson/error/en.h>

#include <cmath>
#include <map>
#include <set>

namespace XimoGis::Topology {

using Data::CDataBox;
using Data::CDataDefinition;
using Data::enmDataTarget;

namespace {

using Json = rapidjson::Value;

std::wstring Wide(const Json& text) { return acutUtf8ToWchar(std::string(text.GetString(), text.GetStringLength())); }

const Json* Member(const Json& object, const char* name) {
    if (!object.IsObject()) return nullptr;
    const auto found = object.FindMember(name);
    return found == object.MemberEnd() ? nullptr : &found->value;
}

std::wstring MemberText(const Json& object, const char* name) {
    const Json* value = Member(object, name);
    return value && value->IsString() ? Wide(*value) : std::wstring();
}

bool ReadPosition(const Json& position, AcGePoint3d& point) {
    if (!position.IsArray() || position.Size() < 2 || !position[0].IsNumber() || !position[1].IsNumber()) return false;
    point.set(position[0].GetDouble(), position[1].GetDouble(), 0.0);
    return std::isfinite(point.x) && std::isfinite(point.y);
}

bool ReadGeometry(const Json* geometry, enmDataTarget target, std::vector<AcGePoint3d>& points, std::wstring& why) {
    const char* wanted = target == enmDataTarget::Node ? "Point" : "LineString";
    const Json* type = geometry ? Member(*geometry, "type") : nullptr;
    if (!type || !type->IsString() || std::string(type->GetString()) != wanted) {
        why = std::wstring(L"its geometry is not a ") + (target == enmDataTarget::Node ? L"Point" : L"LineString");
        return false;
    }
    const Json* coordinates = Member(*geometry, "coordinates");
    points.clear();
    if (coordinates && target == enmDataTarget::Node) {
        AcGePoint3d point;
        if (ReadPosition(*coordinates, point)) points.push_back(point);
    } else if (coordinates && coordinates->IsArray()) {
        for (const Json& position : coordinates->GetArray()) {
            AcGePoint3d point;
            if (!ReadPosition(position, point)) {
                points.clear();
                break;
            }
            points.push_back(point);
        }
    }
    const std::size_t needed = target == enmDataTarget::Node ? 1 : 2;
    if (points.size() < needed) {
        why = L"its coordinates are missing or not numbers";
        return false;
    }
    return true;
}

bool ReadColumns(const Json& root, enmDataTarget target, std::vector<CDataDefinition>& columns, std::wstring& why) {
    static const std::map<std::string, CDataBox::Type> types = {
        {"integer", CDataBox::Type::Integer}, {"real", CDataBox::Type::Double}, {"text", CDataBox::Type::Text}};
    const Json* list = Member(root, "columns");
    if (!list) return true;
    if (!list->IsArray()) {
        why = L"\"columns\" is not a list";
        return false;
    }
    for (const Json& entry : list->GetArray()) {
        const std::wstring column = MemberText(entry, "column");
        const Json* type = Member(entry, "type");
        const auto found = type && type->IsString() ? types.find(type->GetString()) : types.end();
        if (column.empty() || found == types.end()) {
            why = L"column \"" + column + L"\" needs a name and a type (integer, real or text)";
            return false;
        }
        if (!CDataDefinition::IsValidColumnName(column) || CNetworkLayers::IsReservedColumn(column) ||
            column == L"name") {
            why = L"column \"" + column + L"\" is not a valid data column name";
            return false;
        }
        columns.emplace_back(target, column, found->second, MemberText(entry, "name"), MemberText(entry, "unit"));
    }
    return true;
}

CDataBox ToBox(const Json& value) {
    if (value.IsInt()) return CDataBox(value.GetInt());
    if (value.IsNumber()) return CDataBox(value.GetDouble());
    if (value.IsString()) return CDataBox(Wide(value));
    if (value.IsBool()) return CDataBox(value.GetBool() ? 1 : 0);
    return CDataBox();
}

bool ReadFeature(const Json& json, enmDataTarget target, const std::map<std::wstring, const CDataDefinition*>& byColumn,
                 CNetworkFeature& feature, std::wstring& why) {
    std::wstring geometryFault;
    if (!ReadGeometry(Member(json, "geometry"), target, feature.geometry, geometryFault)) {
        why = geometryFault;
        return false;
    }
    const Json* properties = Member(json, "properties");
    if (!properties || !properties->IsObject()) {
        why = L"it has no properties";
        return false;
    }
    for (const auto& member : properties->GetObject()) {
        const std::wstring key = Wide(member.name);
        const Json& value = member.value;
        if (key == L"guid" || key == L"name" || key == L"start_node" || key == L"end_node") {
            if (!value.IsString() && !value.IsNull()) {
                why = L"its \"" + key + L"\" is not text";
                return false;
            }
            const std::wstring text = value.IsString() ? Wide(value) : std::wstring();
            if (key == L"guid") feature.guid = text;
            else if (key == L"name") feature.name = text;
            else if (target == enmDataTarget::Section && key == L"start_node") feature.startNode = text;
            else if (target == enmDataTarget::Section) feature.endNode = text;
            continue;
        }
        const auto column = byColumn.find(key);
        if (column == byColumn.end()) {
            why = L"property \"" + key + L"\" is not a declared column";
            return false;
        }
        CDataBox box = ToBox(value);
        if ((value.IsObject() || value.IsArray()) || !column->second->Coerce(box)) {
            why = L"property \"" + key + L"\" does not fit its column's type";
            return false;
        }
        if (box.IsNotNull()) feature.values[key] = box;
    }
    if (feature.guid.empty()) {
        why = L"it has no \"guid\"";
        return false;
    }
    if (target == enmDataTarget::Section && (feature.startNode.empty() || feature.endNode.empty())) {
        why = L"it lacks \"start_node\" or \"end_node\"";
        return false;
    }
    return true;
}

bool CheckCrs(const Json& root, std::wstring& why) {
    const Json* crs = Member(root, "crs");
    if (!crs) return true;
    const Json* properties = Member(*crs, "properties");
    const std::wstring name = properties ? MemberText(*properties, "name") : std::wstring();
    const std::wstring code = std::to_wstring(CNetworkLayers::kSrsId);
    if (name.size() >= code.size() && name.compare(name.size() - code.size(), code.size(), code) == 0) return true;
    why = L"its \"crs\" is not EPSG:" + code;
    return false;
}

}  // namespace

bool CGeoJsonLayerReader::Read(const std::wstring& file, enmDataTarget target, std::vector<CDataDefinition>& columns,
                               std::vector<CNetworkFeature>& features, std::wstring& error) {
    std::string json;
    if (!Utility::CFilePath::ReadFile(file, json)) {
        error = L"Layer source \"" + file + L"\": the file cannot be read";
        return false;
    }
    return Parse(json, file, target, columns, features, error);
}

bool CGeoJsonLayerReader::Parse(const std::string& json, const std::wstring& source, enmDataTarget target,
                                std::vector<CDataDefinition>& columns, std::vector<CNetworkFeature>& features,
                                std::wstring& error) {
    const std::wstring where = L"Layer source \"" + source + L"\": ";
    rapidjson::Document document;
    document.Parse(json.c_str(), json.size());
    if (document.HasParseError()) {
        error = where + L"not JSON (" + acutUtf8ToWchar(rapidjson::GetParseError_En(document.GetParseError())) +
                L" at byte " + std::to_wstring(document.GetErrorOffset()) + L")";
        return false;
    }
    const Json* type = Member(document, "type");
    const Json* list = Member(document, "features");
    if (!type || !type->IsString() || std::string(type->GetString()) != "FeatureCollection" || !list ||
        !list->IsArray()) {
        error = where + L"not a GeoJSON feature collection";
        return false;
    }
    std::wstring why;
    std::vector<CDataDefinition> declared;
    if (!CheckCrs(document, why) || !ReadColumns(document, target, declared, why)) {
        error = where + why;
        return false;
    }
    std::map<std::wstring, const CDataDefinition*> byColumn;
    for (const CDataDefinition& column : declared) byColumn[column.GetColumn()] = &column;

    std::vector<CNetworkFeature> read;
    std::set<std::wstring> guids;
    for (rapidjson::SizeType i = 0; i < list->Size(); ++i) {
        CNetworkFeature feature;
        if (!ReadFeature((*list)[i], target, byColumn, feature, why)) {
            error = where + L"feature " + std::to_wstring(i + 1) + L" is wrong: " + why;
            return false;
        }
        if (!guids.insert(feature.guid).second) {
            error = where + L"feature " + std::to_wstring(i + 1) + L" repeats the guid " + feature.guid;
            return false;
        }
        read.push_back(std::move(feature));
    }
    columns = std::move(declared);
    features = std::move(read);
    return true;
}

}  // namespace XimoGis::Topology
