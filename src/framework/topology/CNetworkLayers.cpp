#include "framework/topology/CNetworkLayers.h"

#include "framework/workspace/CGpkgGeometry.h"
#include "framework/workspace/CStatement.h"
#include "framework/workspace/CWorkspaceStore.h"
#include "host/base/AcString.h"

#include <algorithm>
#include <cwctype>
#include <limits>
#include <set>

namespace XimoGis::Topology {

using Data::CDataBox;
using Data::CDataDefinition;
using Data::enmDataTarget;
using Workspace::CGpkgGeometry;
using Workspace::CStatement;
using Workspace::CWorkspaceStore;

const char* const CNetworkLayers::kDefinitionsTable = "ximo_data_definitions";

namespace {

const char* const kCreateDefinitions = R"SQL(
CREATE TABLE ximo_data_definitions (
  fid INTEGER PRIMARY KEY AUTOINCREMENT,
  table_name TEXT NOT NULL,
  column_name TEXT NOT NULL,
  display_name TEXT NOT NULL,
  unit TEXT NOT NULL DEFAULT '',
  UNIQUE (table_name, column_name)
))SQL";

const char* const kInsertSrs = R"SQL(
INSERT OR IGNORE INTO gpkg_spatial_ref_sys
  (srs_name, srs_id, organization, organization_coordsys_id, definition, description)
VALUES ('HTRS96 / Croatia TM', 3765, 'EPSG', 3765,
  'PROJCS["HTRS96 / Croatia TM",GEOGCS["HTRS96",DATUM["Croatian_Terrestrial_Reference_System",SPHEROID["GRS 1980",6378137,298.257222101,AUTHORITY["EPSG","7019"]],AUTHORITY["EPSG","6761"]],PRIMEM["Greenwich",0,AUTHORITY["EPSG","8901"]],UNIT["degree",0.0174532925199433,AUTHORITY["EPSG","9122"]],AUTHORITY["EPSG","4761"]],PROJECTION["Transverse_Mercator"],PARAMETER["latitude_of_origin",0],PARAMETER["central_meridian",16.5],PARAMETER["scale_factor",0.9999],PARAMETER["false_easting",500000],PARAMETER["false_northing",0],UNIT["metre",1,AUTHORITY["EPSG","9001"]],AXIS["Easting",EAST],AXIS["Northing",NORTH],AUTHORITY["EPSG","3765"]]',
  'Transverse Mercator of the Croatian terrestrial reference system, metres'))SQL";

std::string Quote(const std::string& identifier) {
    std::string quoted = "\"";
    for (char c : identifier) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + "\"";
}

std::string Quote(const std::wstring& identifier) { return Quote(acutWcharToUtf8(identifier)); }

const char* SqlType(CDataBox::Type type) {
    switch (type) {
        case CDataBox::Type::Integer: return "INTEGER";
        case CDataBox::Type::Double: return "REAL";
        default: return "TEXT";
    }
}

CDataBox::Type TypeOfDeclared(std::string declared) {
    std::transform(declared.begin(), declared.end(), declared.begin(), [](unsigned char c) { return std::toupper(c); });
    if (declared.find("INT") != std::string::npos) return CDataBox::Type::Integer;
    if (declared.find("REAL") != std::string::npos || declared.find("FLOA") != std::string::npos ||
        declared.find("DOUB") != std::string::npos)
        return CDataBox::Type::Double;
    return CDataBox::Type::Text;
}

std::wstring Lower(std::wstring text) {
    std::transform(text.begin(), text.end(), text.begin(), [](wchar_t c) { return std::towlower(c); });
    return text;
}

bool CheckColumns(const std::string& table, const std::vector<CDataDefinition>& columns, std::wstring& error) {
    std::set<std::wstring> seen;
    for (const CDataDefinition& column : columns) {
        const std::wstring& name = column.GetColumn();
        const std::wstring where = L"Layer " + acutUtf8ToWchar(table) + L": column \"" + name + L"\"";
        if (!CDataDefinition::IsValidColumnName(name)) {
            error = where + L" is not a valid name (letters, digits and '_', not starting with a digit)";
            return false;
        }
        if (CNetworkLayers::IsReservedColumn(name) || Lower(name) == L"name") {
            error = where + L" is one of the layer's own columns";
            return false;
        }
        if (!seen.insert(Lower(name)).second) {
            error = where + L" is given twice";
            return false;
        }
    }
    return true;
}

bool DropLayer(CWorkspaceStore& store, const std::string& table, std::wstring& error) {
    for (const char* sql : {"DELETE FROM gpkg_geometry_columns WHERE table_name = ?",
                            "DELETE FROM gpkg_contents WHERE table_name = ?",
                            "DELETE FROM ximo_data_definitions WHERE table_name = ?"}) {
        CStatement erase(store, sql);
        erase.Bind(1, table);
        if (!erase.Execute(error)) return false;
    }
    return store.Execute(("DROP TABLE IF EXISTS " + Quote(table)).c_str(), error);
}

bool BindValue(CStatement& statement, int index, const CDataBox* value) {
    if (!value || value->IsNull()) statement.BindNull(index);
    else if (value->GetType() == CDataBox::Type::Integer) statement.Bind(index, value->AsInt());
    else if (value->GetType() == CDataBox::Type::Double) statement.Bind(index, value->AsDouble());
    else statement.Bind(index, value->AsString());
    return statement.IsValid();
}

CDataBox ReadValue(const CStatement& statement, int column) {
    switch (statement.GetStorageClass(column)) {
        case 'i': {
            const std::int64_t value = statement.GetInt64(column);
            if (value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max())
                return CDataBox(static_cast<int>(value));
            return CDataBox(static_cast<double>(value));
        }
        case 'r': return CDataBox(statement.GetDouble(column));
        case 't': return CDataBox(statement.GetText(column));
        default: return CDataBox();
    }
}

}  // namespace

std::string CNetworkLayers::GetTableName(int systemId, enmDataTarget target) {
    return "network_" + std::to_string(systemId) + "_" + acutWcharToUtf8(CDataDefinition::GetLayerWord(target));
}

bool CNetworkLayers::IsReservedColumn(const std::wstring& column) {
    static const std::set<std::wstring> reserved = {L"fid", L"geom", L"system_id", L"guid", L"start_node", L"end_node"};
    return reserved.count(Lower(column)) > 0;
}

bool CNetworkLayers::CreateLayer(CWorkspaceStore& store, int systemId, enmDataTarget target,
                                 const std::wstring& identifier, const std::vector<CDataDefinition>& columns,
                                 std::wstring& error) {
    const std::string table = GetTableName(systemId, target);
    if (!CheckColumns(table, columns, error)) return false;
    if (!store.EnsureAttributeTable(kDefinitionsTable, kCreateDefinitions,
                                    L"Names and units of the data of the network layers", error) ||
        !store.Execute(kInsertSrs, error) || !DropLayer(store, table, error))
        return false;

    const bool nodes = target == enmDataTarget::Node;
    std::string create = "CREATE TABLE " + Quote(table) +
                         " (fid INTEGER PRIMARY KEY AUTOINCREMENT, geom " + (nodes ? "POINT" : "LINESTRING") +
                         " NOT NULL, system_id INTEGER NOT NULL, guid TEXT NOT NULL UNIQUE, name TEXT";
    if (!nodes) create += ", start_node TEXT NOT NULL, end_node TEXT NOT NULL";
    for (const CDataDefinition& column : columns)
        create += ", " + Quote(column.GetColumn()) + " " + SqlType(column.GetValueType());
    create += ")";
    if (!store.Execute(create.c_str(), error)) return false;

    CStatement contents(store,
                        "INSERT INTO gpkg_contents (table_name, data_type, identifier, description, srs_id) "
                        "VALUES (?, 'features', ?, ?, ?)");
    contents.Bind(1, table).Bind(2, identifier).Bind(3, identifier).Bind(4, kSrsId);
    CStatement geometry(store,
                        "INSERT INTO gpkg_geometry_columns (table_name, column_name, geometry_type_name, srs_id, z, m) "
                        "VALUES (?, 'geom', ?, ?, 0, 0)");
    geometry.Bind(1, table).Bind(2, std::string(nodes ? "POINT" : "LINESTRING")).Bind(3, kSrsId);
    if (!contents.Execute(error) || !geometry.Execute(error)) return false;

    CStatement names(store,
                     "INSERT INTO ximo_data_definitions (table_name, column_name, display_name, unit) "
                     "VALUES (?, ?, ?, ?)");
    std::vector<CDataDefinition> named(columns);
    named.emplace(named.begin(), target, L"name", CDataBox::Type::Text, L"Name");
    for (const CDataDefinition& column : named) {
        names.Reset();
        names.Bind(1, table).Bind(2, column.GetColumn()).Bind(3, column.GetName()).Bind(4, column.GetUnit());
        if (!names.Execute(error)) return false;
    }
    return true;
}

bool CNetworkLayers::InsertFeatures(CWorkspaceStore& store, int systemId, enmDataTarget target,
                                    const std::vector<CDataDefinition>& columns,
                                    const std::vector<CNetworkFeature>& features, std::wstring& error) {
    const std::string table = GetTableName(systemId, target);
    const bool nodes = target == enmDataTarget::Node;
    std::string sql = "INSERT INTO " + Quote(table) + " (geom, system_id, guid, name";
    std::string placeholders = "?, ?, ?, ?";
    if (!nodes) {
        sql += ", start_node, end_node";
        placeholders += ", ?, ?";
    }
    for (const CDataDefinition& column : columns) {
        sql += ", " + Quote(column.GetColumn());
        placeholders += ", ?";
    }
    sql += ") VALUES (" + placeholders + ")";
    CStatement insert(store, sql.c_str());

    double minX = std::numeric_limits<double>::max(), minY = minX;
    double maxX = std::numeric_limits<double>::lowest(), maxY = maxX;
    for (const CNetworkFeature& feature : features) {
        const std::string geometry = nodes && !feature.geometry.empty()
                                         ? CGpkgGeometry::EncodePoint(feature.geometry.front(), kSrsId)
                                         : CGpkgGeometry::EncodeLineString(feature.geometry, kSrsId);
        if (geometry.empty()) {
            error = store.FormatError(L"feature " + feature.guid + L" of layer " + acutUtf8ToWchar(table) +
                                          L" has no geometry",
                                      false);
            return false;
        }
        for (const AcGePoint3d& p : feature.geometry) {
            minX = std::min(minX, p.x), maxX = std::max(maxX, p.x);
            minY = std::min(minY, p.y), maxY = std::max(maxY, p.y);
        }
        insert.Reset(true);
        insert.BindBlob(1, geometry).Bind(2, systemId).Bind(3, feature.guid).Bind(4, feature.name);
        int index = 5;
        if (!nodes) {
            insert.Bind(5, feature.startNode).Bind(6, feature.endNode);
            index = 7;
        }
        for (const CDataDefinition& column : columns) {
            const auto value = feature.values.find(column.GetColumn());
            BindValue(insert, index++, value == feature.values.end() ? nullptr : &value->second);
        }
        if (!insert.Execute(error)) return false;
    }
    if (features.empty()) return store.TouchContents(table, error);
    CStatement extent(store,
                      "UPDATE gpkg_contents SET min_x = min(coalesce(min_x, ?1), ?1), min_y = min(coalesce(min_y, ?2), ?2), "
                      "max_x = max(coalesce(max_x, ?3), ?3), max_y = max(coalesce(max_y, ?4), ?4) WHERE table_name = ?5");
    extent.Bind(1, minX).Bind(2, minY).Bind(3, maxX).Bind(4, maxY).Bind(5, table);
    return extent.Execute(error) && store.TouchContents(table, error);
}

bool CNetworkLayers::HasLayer(const CWorkspaceStore& store, int systemId, enmDataTarget target) {
    return store.HasTable(GetTableName(systemId, target));
}

bool CNetworkLayers::LoadDefinitions(const CWorkspaceStore& store, int systemId, enmDataTarget target,
                                     Data::CDataConfiguration& configuration, std::wstring& error) {
    const std::string table = GetTableName(systemId, target);
    if (!store.HasTable(table)) return true;
    const bool named = store.HasTable(kDefinitionsTable);
    CStatement columns(store, "SELECT name, type FROM pragma_table_info(?) ORDER BY cid");
    columns.Bind(1, table);
    CStatement names(store,
                     named ? "SELECT display_name, unit FROM ximo_data_definitions WHERE table_name = ? AND column_name = ?"
                           : "SELECT 1 WHERE 0");
    while (columns.Next()) {
        const std::wstring column = columns.GetText(0);
        if (IsReservedColumn(column)) continue;
        CDataDefinition definition(target, column, TypeOfDeclared(columns.GetUtf8(1)));
        names.Reset(true);
        if (named) names.Bind(1, table).Bind(2, column);
        if (names.Next()) {
            definition.SetName(names.GetText(0));
            definition.SetUnit(names.GetText(1));
        } else if (names.Failed()) {
            error = names.GetError();
            return false;
        }
        configuration.Add(definition);
    }
    if (columns.Failed()) error = columns.GetError();
    return !columns.Failed();
}

bool CNetworkLayers::LoadFeatures(const CWorkspaceStore& store, int systemId, enmDataTarget target,
                                  const Data::CDataConfiguration& configuration, std::vector<CNetworkFeature>& features,
                                  std::wstring& error) {
    features.clear();
    const std::string table = GetTableName(systemId, target);
    if (!store.HasTable(table)) return true;
    const bool nodes = target == enmDataTarget::Node;
    const std::vector<const CDataDefinition*> columns = configuration.GetDefinitions(target);
    std::string sql = "SELECT guid, geom";
    if (!nodes) sql += ", start_node, end_node";
    for (const CDataDefinition* column : columns) sql += ", " + Quote(column->GetColumn());
    sql += " FROM " + Quote(table) + " WHERE system_id = ? ORDER BY fid";
    CStatement query(store, sql.c_str());
    query.Bind(1, systemId);
    while (query.Next()) {
        CNetworkFeature feature;
        feature.guid = query.GetText(0);
        CGpkgGeometry::enmGeometryType type = CGpkgGeometry::gtUnknown;
        int srsId = 0;
        std::string reason;
        if (!CGpkgGeometry::Decode(query.GetBlob(1), type, feature.geometry, srsId, reason) ||
            type != (nodes ? CGpkgGeometry::gtPoint : CGpkgGeometry::gtLineString)) {
            if (reason.empty()) reason = nodes ? "the geometry is not a point" : "the geometry is not a line string";
            error = store.FormatError(L"feature " + feature.guid + L" of layer " + acutUtf8ToWchar(table) + L": " +
                                          acutUtf8ToWchar(reason),
                                      false);
            return false;
        }
        int index = 2;
        if (!nodes) {
            feature.startNode = query.GetText(index++);
            feature.endNode = query.GetText(index++);
        }
        for (const CDataDefinition* column : columns) {
            CDataBox value = ReadValue(query, index++);
            if (column->GetColumn() == L"name") feature.name = value.AsString();
            else if (value.IsNotNull()) feature.values[column->GetColumn()] = value;
        }
        features.push_back(std::move(feature));
    }
    if (query.Failed()) error = query.GetError();
    return !query.Failed();
}

}  // namespace XimoGis::Topology
