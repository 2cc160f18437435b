#include "framework/workspace/CWorkspaceStore.h"

#include "framework/utility/CFilePath.h"
#include "framework/workspace/CStatement.h"
#include "framework/workspace/CTransaction.h"
#include "host/base/AcString.h"

#include <sqlite3.h>

#include <filesystem>
#include <string>

namespace XimoGis::Workspace {

namespace {

// 'GPKG' read as a big-endian 32-bit number, and GeoPackage 1.3 as user_version.
constexpr int kGeoPackageApplicationId = 0x47504B47;
constexpr int kGeoPackageUserVersion = 10300;

// The core tables and the three spatial reference systems every GeoPackage must hold.
const char* const kCoreSchema = R"SQL(
CREATE TABLE gpkg_spatial_ref_sys (
  srs_name TEXT NOT NULL,
  srs_id INTEGER NOT NULL PRIMARY KEY,
  organization TEXT NOT NULL,
  organization_coordsys_id INTEGER NOT NULL,
  definition TEXT NOT NULL,
  description TEXT
);
CREATE TABLE gpkg_contents (
  table_name TEXT NOT NULL PRIMARY KEY,
  data_type TEXT NOT NULL,
  identifier TEXT UNIQUE,
  description TEXT DEFAULT '',
  last_change DATETIME NOT NULL DEFAULT (strftime('%Y-%m-%dT%H:%M:%fZ','now')),
  min_x DOUBLE,
  min_y DOUBLE,
  max_x DOUBLE,
  max_y DOUBLE,
  srs_id INTEGER,
  CONSTRAINT fk_gc_r_srs_id FOREIGN KEY (srs_id) REFERENCES gpkg_spatial_ref_sys(srs_id)
);
CREATE TABLE gpkg_geometry_columns (
  table_name TEXT NOT NULL,
  column_name TEXT NOT NULL,
  geometry_type_name TEXT NOT NULL,
  srs_id INTEGER NOT NULL,
  z TINYINT NOT NULL,
  m TINYINT NOT NULL,
  CONSTRAINT pk_geom_cols PRIMARY KEY (table_name, column_name),
  CONSTRAINT uk_gc_table_name UNIQUE (table_name),
  CONSTRAINT fk_gc_tn FOREIGN KEY (table_name) REFERENCES gpkg_contents(table_name),
  CONSTRAINT fk_gc_srs FOREIGN KEY (srs_id) REFERENCES gpkg_spatial_ref_sys (srs_id)
);
INSERT INTO gpkg_spatial_ref_sys VALUES
  ('WGS 84 geodetic', 4326, 'EPSG', 4326,
   'GEOGCS["WGS 84",DATUM["WGS_1984",SPHEROID["WGS 84",6378137,298.257223563,AUTHORITY["EPSG","7030"]],AUTHORITY["EPSG","6326"]],PRIMEM["Greenwich",0,AUTHORITY["EPSG","8901"]],UNIT["degree",0.0174532925199433,AUTHORITY["EPSG","9122"]],AUTHORITY["EPSG","4326"]]',
   'longitude/latitude coordinates in decimal degrees on the WGS 84 spheroid'),
  ('Undefined cartesian SRS', -1, 'NONE', -1, 'undefined', 'undefined cartesian coordinate reference system'),
  ('Undefined geographic SRS', 0, 'NONE', 0, 'undefined', 'undefined geographic coordinate reference system');
)SQL";

const wchar_t* HintFor(int primaryCode) {
    switch (primaryCode) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return L"the file is locked by another program";
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
            return L"the file is damaged or not a database";
        case SQLITE_READONLY:
            return L"the file or its folder is read-only";
        case SQLITE_CANTOPEN:
            return L"the file cannot be opened";
        case SQLITE_FULL:
            return L"the disk is full";
        case SQLITE_IOERR:
            return L"the file cannot be read or written";
        default:
            return nullptr;
    }
}

}  // namespace

const wchar_t* CWorkspaceStore::FileName() { return L"workspace.gpkg"; }

std::wstring CWorkspaceStore::PathInWorkspace(const std::wstring& workspaceFolder) {
    using Utility::CFilePath;
    return CFilePath::ToText((CFilePath::ToPath(workspaceFolder) / CFilePath::ToPath(FileName())).lexically_normal());
}

CWorkspaceStore::CWorkspaceStore() = default;

CWorkspaceStore::~CWorkspaceStore() { Close(); }

void CWorkspaceStore::SetBusyTimeout(int milliseconds) { m_busyTimeoutMs = milliseconds; }

bool CWorkspaceStore::Open(const std::wstring& path, enmOpenMode mode, std::wstring& error) {
    namespace fs = std::filesystem;
    Close();
    m_path = path;
    std::error_code ec;
    const fs::path file = Utility::CFilePath::ToPath(path);
    const bool existed = fs::exists(file, ec);
    if (!existed && mode != omCreate) {
        error = FormatError(L"the file does not exist", false);
        return false;
    }
    if (existed && !fs::is_regular_file(file, ec)) {
        error = FormatError(L"the path is not a file", false);
        return false;
    }
    int flags = SQLITE_OPEN_READONLY;
    if (mode != omReadOnly) flags = SQLITE_OPEN_READWRITE | (mode == omCreate ? SQLITE_OPEN_CREATE : 0);
    const int rc = sqlite3_open_v2(acutWcharToUtf8(path).c_str(), &m_db, flags, nullptr);
    m_readOnly = mode == omReadOnly;
    bool ok = rc == SQLITE_OK;
    if (!ok) {
        error = FormatError(L"cannot open the file");
    } else {
        sqlite3_extended_result_codes(m_db, 1);
        sqlite3_busy_timeout(m_db, m_busyTimeoutMs);
        ok = Validate(error);
    }
    if (!ok) {
        Close();
        m_path = path;
        // A file made by this call and left unfinished would pass for a workspace later.
        if (!existed) fs::remove(file, ec);
    }
    return ok;
}

bool CWorkspaceStore::Validate(std::wstring& error) {
    int applicationId = 0;
    int tableCount = 0;
    {
        CStatement header(*this, "PRAGMA application_id");
        if (!header.Next()) {
            error = header.Failed() ? header.GetError() : FormatError(L"cannot read the file header");
            return false;
        }
        applicationId = header.GetInt(0);
        CStatement tables(*this, "SELECT count(*) FROM sqlite_master");
        if (!tables.Next()) {
            error = tables.GetError();
            return false;
        }
        tableCount = tables.GetInt(0);
    }
    if (applicationId == 0 && tableCount == 0 && !m_readOnly) return Initialize(error);
    if (applicationId != kGeoPackageApplicationId) {
        error = FormatError(L"not a GeoPackage (its application_id is not 'GPKG')", false);
        return false;
    }
    for (const char* table : {"gpkg_spatial_ref_sys", "gpkg_contents"}) {
        if (!HasTable(table)) {
            error = FormatError(L"not a GeoPackage (table " + acutUtf8ToWchar(table) + L" is missing)", false);
            return false;
        }
    }
    return true;
}

bool CWorkspaceStore::Initialize(std::wstring& error) {
    CTransaction transaction(*this);
    if (!transaction.IsActive()) {
        error = transaction.GetError();
        return false;
    }
    const std::string header = "PRAGMA application_id = " + std::to_string(kGeoPackageApplicationId) +
                               "; PRAGMA user_version = " + std::to_string(kGeoPackageUserVersion) + ";";
    return Execute(header.c_str(), error) && Execute(kCoreSchema, error) && transaction.Commit(error);
}

void CWorkspaceStore::Close() {
    if (m_db) sqlite3_close_v2(m_db);
    m_db = nullptr;
    m_path.clear();
    m_readOnly = true;
}

bool CWorkspaceStore::IsOpen() const { return m_db != nullptr; }

bool CWorkspaceStore::IsReadOnly() const { return m_readOnly; }

const std::wstring& CWorkspaceStore::GetPath() const { return m_path; }

sqlite3* CWorkspaceStore::GetHandle() const { return m_db; }

bool CWorkspaceStore::Execute(const char* sql, std::wstring& error) {
    if (!m_db) {
        error = FormatError(L"the store is not open", false);
        return false;
    }
    if (sqlite3_exec(m_db, sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
        error = FormatError(L"a statement failed");
        return false;
    }
    return true;
}

bool CWorkspaceStore::HasTable(const std::string& table) const {
    if (!m_db) return false;
    CStatement query(*this, "SELECT 1 FROM sqlite_master WHERE type IN ('table', 'view') AND name = ?");
    query.Bind(1, table);
    return query.Next();
}

bool CWorkspaceStore::HasColumn(const std::string& table, const std::string& column) const {
    if (!m_db) return false;
    CStatement query(*this, "SELECT 1 FROM pragma_table_info(?) WHERE name = ?");
    query.Bind(1, table).Bind(2, column);
    return query.Next();
}

bool CWorkspaceStore::EnsureAttributeTable(const std::string& table, const char* createSql,
                                           const std::wstring& description, std::wstring& error) {
    if (!HasTable(table) && !Execute(createSql, error)) return false;
    CStatement insert(*this,
                      "INSERT OR IGNORE INTO gpkg_contents (table_name, data_type, identifier, description) "
                      "VALUES (?, 'attributes', ?, ?)");
    insert.Bind(1, table).Bind(2, table).Bind(3, description);
    return insert.Execute(error);
}

bool CWorkspaceStore::TouchContents(const std::string& table, std::wstring& error) {
    CStatement update(*this,
                      "UPDATE gpkg_contents SET last_change = strftime('%Y-%m-%dT%H:%M:%fZ', 'now') "
                      "WHERE table_name = ?");
    update.Bind(1, table);
    return update.Execute(error);
}

std::wstring CWorkspaceStore::FormatError(const std::wstring& what, bool withSqliteMessage) const {
    std::wstring text = L"Workspace store \"" + m_path + L"\": " + what;
    if (withSqliteMessage && m_db) {
        const std::wstring message = acutUtf8ToWchar(sqlite3_errmsg(m_db));
        const wchar_t* hint = HintFor(sqlite3_errcode(m_db) & 0xFF);
        text += hint ? L": " + std::wstring(hint) + L" (" + message + L")" : L": " + message;
    }
    return text;
}

}  // namespace XimoGis::Workspace
