#pragma once
// An open drawing document: its database, its file name and the locks held on it.
// Documents are made and destroyed only by the document manager, which owns them.

#include <memory>
#include <string>
#include <vector>

#include "host/base/AcadTypes.h"
#include "host/documents/AcApDocLockMode.h"

class AcDbDatabase;

class AcApDocument {
public:
    ~AcApDocument();
    AcApDocument(const AcApDocument&) = delete;
    AcApDocument& operator=(const AcApDocument&) = delete;

    // The full path of the drawing file, or "DrawingN.dwg" for a drawing never saved.
    const ACHAR* fileName() const { return m_fileName.c_str(); }
    // The file name without its folder, as a window title shows it.
    const ACHAR* docTitle() const { return m_title.c_str(); }
    // The document owns its database; it lives exactly as long as the document.
    AcDbDatabase* database() const { return m_database.get(); }
    bool isReadOnly() const { return false; }

    // The mode of the innermost lock held, kNotLocked when none is held. There is one execution
    // context here, so the locks of this context are all the locks there are.
    AcAp::DocLockMode myLockMode() const;
    AcAp::DocLockMode lockMode(bool includeMyLocksToo = false) const;
    // How many locks are held (nested locks count one each).
    int lockCount() const { return static_cast<int>(m_locks.size()); }

private:
    friend class AcApDocManager;
    AcApDocument(std::unique_ptr<AcDbDatabase> database, std::wstring fileName);

    std::unique_ptr<AcDbDatabase> m_database;
    std::wstring m_fileName;
    std::wstring m_title;
    std::vector<AcAp::DocLockMode> m_locks;
};
