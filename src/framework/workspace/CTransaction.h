#pragma once
// A write transaction on a workspace store: begun on construction, rolled back on destruction
// unless committed, so an error on any path leaves the file as it was.

#include <string>

namespace XimoGis::Workspace {

class CWorkspaceStore;

class CTransaction {
public:
    explicit CTransaction(CWorkspaceStore& store);
    ~CTransaction();
    CTransaction(const CTransaction&) = delete;
    CTransaction& operator=(const CTransaction&) = delete;

    // False when the transaction could not begin (read-only or locked store); see GetError().
    bool IsActive() const;
    const std::wstring& GetError() const;
    bool Commit(std::wstring& error);
    void Rollback();

private:
    CWorkspaceStore& m_store;
    bool m_active = false;
    std::wstring m_error;
};

}  // namespace XimoGis::Workspace
