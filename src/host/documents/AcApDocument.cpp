#include "host/documents/AcApDocument.h"

#include "host/database/AcDbDatabase.h"

AcApDocument::AcApDocument(std::unique_ptr<AcDbDatabase> database, std::wstring fileName)
    : m_database(std::move(database)), m_fileName(std::move(fileName)) {
    const std::size_t slash = m_fileName.find_last_of(L"/\\");
    m_title = slash == std::wstring::npos ? m_fileName : m_fileName.substr(slash + 1);
}

AcApDocument::~AcApDocument() = default;

AcAp::DocLockMode AcApDocument::myLockMode() const {
    return m_locks.empty() ? AcAp::kNotLocked : m_locks.back();
}

AcAp::DocLockMode AcApDocument::lockMode(bool) const { return myLockMode(); }
