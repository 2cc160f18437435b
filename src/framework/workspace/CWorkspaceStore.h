#pragma once
// The workspace's GeoPackage "workspace.gpkg": one SQLite file that QGIS and ogrinfo can open.
// It holds the GeoPackage core tables and the framework's own tables (systems, their layers,
// later feature layers and catalogs), each registered in gpkg_contents.

#include <string>

struct sqlite3;

namespace XimoGis::Workspace {

class CWorkspaceStore {
public:
    enum enmOpenMode {
        omReadOnly,   // the file must exist and be a GeoPackage; nothing can be written
        omReadWrite,  // the file must exist and be a GeoPackage
        omCreate      // as omReadWrite, but a missing file is created with the core tables
    };

    static const wchar_t* FileName();  // "workspace.gpkg"
    // The store's path inside a workspace folder (with or without a trailing separator).
    static std::wstring PathInWorkspace(const std::wstring& workspaceFolder);

    CWorkspaceStore();
    ~CWorkspaceStore();
    CWorkspaceStore(const CWorkspaceStore&) = delete;
    CWorkspaceStore& operator=(const CWorkspaceStore&) = delete;

    // How long a statement waits for another process's lock before failing; set before Open.
    void SetBusyTimeout(int milliseconds);

    // A file that is missing (unless created), not a database, not a GeoPackage or locked gives
    // false and an error naming the file; a file created here and left unfinished is removed.
    bool Open(const std::wstring& path, enmOpenMode mode, std::wstring& error);
    void Close();
    bool IsOpen() const;
    bool IsReadOnly() const;
    const std::wstring& GetPath() const;
    sqlite3* GetHandle() const;

    // Runs SQL without parameters (several statements allowed).
    bool Execute(const char* sql, std::wstring& error);
    bool HasTable(const std::string& table) const;
    bool HasColumn(const std::string& table, const std::string& column) const;

    // Creates an attribute table when missing and registers it in gpkg_contents with
    // data_type 'attributes'. The table must have an INTEGER PRIMARY KEY AUTOINCREMENT column.
    bool EnsureAttributeTable(const std::string& table, const char* createSql, const std::wstring& description,
                              std::wstring& error);
    // Records in gpkg_contents that the table's content changed now.
    bool TouchContents(const std::string& table, std::wstring& error);

    // 'Workspace store "<path>": <what>[: <SQLite's last message>]', the form of every error here.
    std::wstring FormatError(const std::wstring& what, bool withSqliteMessage = true) const;

private:
    bool Validate(std::wstring& error);
    bool Initialize(std::wstring& error);

    sqlite3* m_db = nullptr;
    std::wstring m_path;
    bool m_readOnly = true;
    int m_busyTimeoutMs = 2000;
};

}  // namespace XimoGis::Workspace
