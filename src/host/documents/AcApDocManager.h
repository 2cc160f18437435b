#pragma once
// The document manager: the open drawing documents, which of them is current, their locks, and
// the reactors told about all of it. One per process, reached through acDocManager.
//
// Without a screen there is no window to click: the document manager starts with no document
// open, and a command line or a test makes documents with appContextNewDocument and
// appContextOpenDocument. The current document and the active (window) document are the same
// unless setCurDocument is asked to differ; the working database always follows the current
// document.

#include <memory>
#include <string>
#include <vector>

#include "host/base/AcadTypes.h"
#include "host/documents/AcApDocLockMode.h"
#include "host/documents/AcApDocument.h"
#include "host/documents/AcApDocumentIterator.h"

class AcApDocManagerReactor;
class AcDbDatabase;

class AcApDocManager {
public:
    ~AcApDocManager();
    AcApDocManager(const AcApDocManager&) = delete;
    AcApDocManager& operator=(const AcApDocManager&) = delete;

    // The document commands work in; null when no document is open.
    AcApDocument* curDocument() const { return m_current; }
    // The document whose window is active.
    AcApDocument* mdiActiveDocument() const { return m_active; }
    // The document that owns the database; null for a database of no document.
    AcApDocument* document(const AcDbDatabase* database) const;
    int documentCount() const { return static_cast<int>(m_documents.size()); }
    AcApDocumentIterator* newAcApDocumentIterator() const;

    // Makes the document current (and active when activate is set), then locks it in mode unless
    // mode is kNone. eNoDocument for a document that is not open here.
    Acad::ErrorStatus setCurDocument(AcApDocument* document, AcAp::DocLockMode mode = AcAp::kNone,
                                     bool activate = false);
    // Makes the document active and current.
    Acad::ErrorStatus activateDocument(AcApDocument* document, bool passScript = false);

    // A new drawing, named "DrawingN.dwg", which becomes active and current. With a template name
    // the drawing starts as a copy of that DXF file.
    Acad::ErrorStatus appContextNewDocument(const ACHAR* templateName = nullptr, std::wstring* error = nullptr);
    // Opens a DXF drawing as a new document, which becomes active and current. A drawing that is
    // open already is activated instead. On failure nothing changes and error, when given, names
    // the file and what is wrong with it.
    Acad::ErrorStatus appContextOpenDocument(const ACHAR* fileName, std::wstring* error = nullptr);
    // Closes the document with its database, unsaved changes included. A locked document cannot
    // be closed (eLockViolation). When the current document closes, the most recently opened
    // of the others becomes active and current.
    Acad::ErrorStatus closeDocument(AcApDocument* document);

    // Locks nest: every lockDocument needs its unlockDocument, and the document's mode is that of
    // the innermost lock. unlockDocument without a lock fails with eNotApplicable.
    Acad::ErrorStatus lockDocument(AcApDocument* document, AcAp::DocLockMode mode = AcAp::kWrite,
                                   const ACHAR* globalCommandName = nullptr,
                                   const ACHAR* localCommandName = nullptr, bool prompt = true);
    Acad::ErrorStatus unlockDocument(AcApDocument* document);

    // Reactors are not owned; a reactor removes itself before it is destroyed. Reactors added
    // while a notification runs hear from the next notification on.
    void addReactor(AcApDocManagerReactor* reactor);
    void removeReactor(AcApDocManagerReactor* reactor);

private:
    friend AcApDocManager* acDocManagerPtr();
    AcApDocManager();

    bool isOpen(const AcApDocument* document) const;
    AcApDocument* addDocument(std::unique_ptr<AcDbDatabase> database, const std::wstring& fileName);
    void switchTo(AcApDocument* document, bool activate);
    template <class Notify>
    void notify(Notify&& call);

    std::vector<std::unique_ptr<AcApDocument>> m_documents;
    std::vector<AcApDocManagerReactor*> m_reactors;
    AcApDocument* m_current = nullptr;
    AcApDocument* m_active = nullptr;
    int m_untitledCount = 0;
};

AcApDocManager* acDocManagerPtr();
#define acDocManager acDocManagerPtr()
