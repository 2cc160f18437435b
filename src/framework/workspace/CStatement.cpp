#include "framework/workspace/CStatement.h"

#include "framework/workspace/CWorkspaceStore.h"
#include "host/base/AcString.h"

#include <sqlite3.h>

namespace XimoGis::Workspace {

CStatement::CStatement(const CWorkspaceStore& store, const char* sql) : m_store(store) {
    if (!store.GetHandle()) {
        m_error = store.FormatError(L"the store is not open", false);
        return;
    }
    if (sqlite3_prepare_v2(store.GetHandle(), sql, -1, &m_stmt, nullptr) != SQLITE_OK) {
        m_error = store.FormatError(L"cannot prepare \"" + acutUtf8ToWchar(sql) + L"\"");
        sqlite3_finalize(m_stmt);
        m_stmt = nullptr;
    }
}

CStatement::~CStatement() { sqlite3_finalize(m_stmt); }

bool CStatement::IsValid() const { return m_stmt != nullptr && m_error.empty(); }

const std::wstring& CStatement::GetError() const { return m_error; }

void CStatement::CheckBind(int rc, int index) {
    if (rc != SQLITE_OK && m_error.empty())
        m_error = m_store.FormatError(L"cannot bind parameter " + std::to_wstring(index));
}

CStatement& CStatement::Bind(int index, int value) {
    if (m_stmt) CheckBind(sqlite3_bind_int(m_stmt, index, value), index);
    return *this;
}

CStatement& CStatement::Bind(int index, std::int64_t value) {
    if (m_stmt) CheckBind(sqlite3_bind_int64(m_stmt, index, value), index);
    return *this;
}

CStatement& CStatement::Bind(int index, double value) {
    if (m_stmt) CheckBind(sqlite3_bind_double(m_stmt, index, value), index);
    return *this;
}

CStatement& CStatement::Bind(int index, const std::wstring& value) { return Bind(index, acutWcharToUtf8(value)); }

CStatement& CStatement::Bind(int index, const std::string& utf8) {
    if (m_stmt)
        CheckBind(sqlite3_bind_text(m_stmt, index, utf8.data(), static_cast<int>(utf8.size()), SQLITE_TRANSIENT),
                  index);
    return *this;
}

CStatement& CStatement::BindNull(int index) {
    if (m_stmt) CheckBind(sqlite3_bind_null(m_stmt, index), index);
    return *this;
}

CStatement& CStatement::BindBlob(int index, const std::string& bytes) {
    if (m_stmt)
        CheckBind(sqlite3_bind_blob(m_stmt, index, bytes.data(), static_cast<int>(bytes.size()), SQLITE_TRANSIENT),
                  index);
    return *this;
}

bool CStatement::Next() {
    if (!IsValid()) {
        m_failed = true;
        return false;
    }
    const int rc = sqlite3_step(m_stmt);
    if (rc == SQLITE_ROW) return true;
    if (rc != SQLITE_DONE) {
        m_failed = true;
        m_error = m_store.FormatError(L"cannot run \"" + acutUtf8ToWchar(sqlite3_sql(m_stmt)) + L"\"");
    }
    return false;
}

bool CStatement::Failed() const { return m_failed; }

bool CStatement::Execute(std::wstring& error) {
    while (Next()) {
    }
    if (m_failed) error = m_error;
    return !m_failed;
}

void CStatement::Reset(bool clearBindings) {
    if (!m_stmt) return;
    sqlite3_reset(m_stmt);
    if (clearBindings) sqlite3_clear_bindings(m_stmt);
    m_failed = false;
    m_error.clear();
}

bool CStatement::IsNull(int column) const { return sqlite3_column_type(m_stmt, column) == SQLITE_NULL; }

int CStatement::GetInt(int column) const { return sqlite3_column_int(m_stmt, column); }

std::int64_t CStatement::GetInt64(int column) const { return sqlite3_column_int64(m_stmt, column); }

double CStatement::GetDouble(int column) const { return sqlite3_column_double(m_stmt, column); }

std::wstring CStatement::GetText(int column) const { return acutUtf8ToWchar(GetUtf8(column)); }

std::string CStatement::GetUtf8(int column) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(m_stmt, column));
    if (!text) return {};
    return std::string(text, static_cast<size_t>(sqlite3_column_bytes(m_stmt, column)));
}

std::string CStatement::GetBlob(int column) const {
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(m_stmt, column));
    if (!bytes) return {};
    return std::string(bytes, static_cast<size_t>(sqlite3_column_bytes(m_stmt, column)));
}

char CStatement::GetStorageClass(int column) const {
    switch (sqlite3_column_type(m_stmt, column)) {
        case SQLITE_INTEGER: return 'i';
        case SQLITE_FLOAT: return 'r';
        case SQLITE_TEXT: return 't';
        case SQLITE_BLOB: return 'b';
        default: return 'n';
    }
}

}  // namespace XimoGis::Workspace
