#include "host/documents/AcAxDocLock.h"

#include "host/database/AcDbDatabase.h"
#include "host/documents/AcApDocManager.h"

AcAxDocLock::AcAxDocLock() { lock(acdbHostApplicationServices()->workingDatabase(), kNormal); }

AcAxDocLock::AcAxDocLock(const AcDbObjectId& objectId, DocLockType type) { lock(objectId.database(), type); }

AcAxDocLock::AcAxDocLock(AcDbDatabase* database, DocLockType type) { lock(database, type); }

void AcAxDocLock::lock(AcDbDatabase* database, DocLockType type) {
    m_document = acDocManager->document(database);
    if (!m_document) {
        m_status = Acad::eNoDocument;
        return;
    }
    if (type == kCurDocSwitch && acDocManager->curDocument() != m_document) {
        m_previous = acDocManager->curDocument();
        m_switched = acDocManager->setCurDocument(m_document) == Acad::eOk;
    }
    m_status = acDocManager->lockDocument(m_document);
}

AcAxDocLock::~AcAxDocLock() {
    if (m_status == Acad::eOk) acDocManager->unlockDocument(m_document);
    // The previous document may have been closed meanwhile; then there is nothing to go back to.
    if (m_switched && m_previous) acDocManager->setCurDocument(m_previous);
}
