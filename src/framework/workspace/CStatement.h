#pragma once
// One prepared SQL statement of a workspace store, finalized when it goes out of scope.
// Bind parameters (1-based), then either step through rows with Next() or run it with Execute().

#include <cstdint>
#include <string>

struct sqlite3_stmt;

namespace XimoGis::Workspace {

class CWorkspaceStore;

class CStatement {
public:
    CStatement(const CWorkspaceStore& store, const char* sql);
    ~CStatement();
    CStatement(const CStatement&) = delete;
    CStatement& operator=(const CStatement&) = delete;

    // False when preparing or binding failed; GetError() tells why.
    bool IsValid() const;
    const std::wstring& GetError() const;

    CStatement& Bind(int index, int value);
    CStatement& Bind(int index, std::int64_t value);
    CStatement& Bind(int index, double value);
    CStatement& Bind(int index, const std::wstring& value);  // stored as UTF-8 text
    CStatement& Bind(int index, const std::string& utf8);
    CStatement& BindNull(int index);
    // Bytes kept as they are (a geometry, for instance).
    CStatement& BindBlob(int index, const std::string& bytes);

    // Steps to the next row: true while there is one. After false, Failed() tells an error
    // apart from the end of the rows.
    bool Next();
    bool Failed() const;
    // Steps to the end (for statements without rows); false and an error on failure.
    bool Execute(std::wstring& error);
    // Makes the statement ready to run again, keeping the bound values unless cleared.
    void Reset(bool clearBindings = false);

    bool IsNull(int column) const;
    int GetInt(int column) const;
    std::int64_t GetInt64(int column) const;
    double GetDouble(int column) const;
    std::wstring GetText(int column) const;
    std::string GetUtf8(int column) const;
    std::string GetBlob(int column) const;
    // 'i' integer, 'r' real, 't' text, 'b' blob, 'n' null: the value's own storage class.
    char GetStorageClass(int column) const;

private:
    void CheckBind(int rc, int index);

    const CWorkspaceStore& m_store;
    sqlite3_stmt* m_stmt = nullptr;
    std::wstring m_error;
    bool m_failed = false;
};

}  // namespace XimoGis::Workspace
