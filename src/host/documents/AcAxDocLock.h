#pragma once
// Locks a document for the lifetime of the object: the document of the working database, of an
// object's database or of a given database. With kCurDocSwitch the locked document also becomes
// current, and the document that was current before is made current again at the end.

#include "host/base/AcadTypes.h"

class AcApDocument;
class AcDbDatabase;
class AcDbObjectId;

class AcAxDocLock {
public:
    enum DocLockType { kNormal = 0, kCurDocSwitch = 1 };

    AcAxDocLock();
    explicit AcAxDocLock(const AcDbObjectId& objectId, DocLockType type = kNormal);
    explicit AcAxDocLock(AcDbDatabase* database, DocLockType type = kNormal);
    ~AcAxDocLock();
    AcAxDocLock(const AcAxDocLock&) = delete;
    AcAxDocLock& operator=(const AcAxDocLock&) = delete;

    // eOk while the lock is held; eNoDocument when the database belongs to no open document.
    Acad::ErrorStatus lockStatus() const { return m_status; }
    // The locked document, null when nothing is locked.
    AcApDocument* document() const { return m_status == Acad::eOk ? m_document : nullptr; }

private:
    void lock(AcDbDatabase* database, DocLockType type);

    AcApDocument* m_document = nullptr;
    AcApDocument* m_previous = nullptr;
    bool m_switched = false;
    Acad::ErrorStatus m_status = Acad::eNoDocument;
};
