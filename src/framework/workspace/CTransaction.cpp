#include "framework/workspace/CTransaction.h"

#include "framework/workspace/CWorkspaceStore.h"

namespace XimoGis::Workspace {

CTransaction::CTransaction(CWorkspaceStore& store) : m_store(store) {
    if (!store.IsOpen()) {
        m_error = store.FormatError(L"the store is not open", false);
    } else if (store.IsReadOnly()) {
        m_error = store.FormatError(L"the store is open for reading only", false);
    } else {
        // IMMEDIATE takes the write lock now, so a locked file fails here rather than halfway.
        m_active = store.Execute("BEGIN IMMEDIATE", m_error);
    }
}

CTransaction::~CTransaction() { Rollback(); }

bool CTransaction::IsActive() const { return m_active; }

const std::wstring& CTransaction::GetError() const { return m_error; }

bool CTransaction::Commit(std::wstring& error) {
    if (!m_active) {
        error = m_error.empty() ? m_store.FormatError(L"no transaction to commit", false) : m_error;
        return false;
    }
    if (!m_store.Execute("COMMIT", error)) return false;
    m_active = false;
    return true;
}

void CTransaction::Rollback() {
    if (!m_active) return;
    std::wstring ignored;
    m_store.Execute("ROLLBACK", ignored);
    m_active = false;
}

}  // namespace XimoGis::Workspace
