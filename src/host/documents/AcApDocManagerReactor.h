#pragma once
// Notifications about documents. Derive, override what is needed and register the reactor with
// acDocManager->addReactor; every notification does nothing by default.

#include "host/base/AcadTypes.h"
#include "host/documents/AcApDocLockMode.h"

class AcApDocument;

class AcApDocManagerReactor {
public:
    virtual ~AcApDocManagerReactor() = default;

    // The document is complete, with its database loaded.
    virtual void documentCreated(AcApDocument*) {}
    // The document is about to close; it and its database are still intact.
    virtual void documentToBeDestroyed(AcApDocument*) {}
    // The document is gone; only its file name is left.
    virtual void documentDestroyed(const ACHAR* /*fileName*/) {}
    // The document is now the one that commands work in (curDocument).
    virtual void documentBecameCurrent(AcApDocument*) {}
    // The active window is about to change away from the document / has changed to it.
    virtual void documentToBeDeactivated(AcApDocument*) {}
    virtual void documentActivated(AcApDocument*) {}
    // A lock was taken or released: the modes of this context before and after, the document's
    // mode after, and the command that asked for the lock.
    virtual void documentLockModeChanged(AcApDocument*, AcAp::DocLockMode /*myPreviousMode*/,
                                         AcAp::DocLockMode /*myCurrentMode*/, AcAp::DocLockMode /*currentMode*/,
                                         const ACHAR* /*globalCommandName*/) {}
};
