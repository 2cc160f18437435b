#pragma once
// Per-document data: one value of T for every open document, made (default-constructed) the
// first time docData asks for it and destroyed when its document is about to close, while the
// document and its database are still intact. The manager is a document-manager reactor for
// exactly that: it registers itself when made and unregisters when destroyed.
//
// docData() without a document is the data of the current document; with no document open that
// is the slot of the null document, which no close ever drops.

#include <map>

#include "host/documents/AcApDocManager.h"
#include "host/documents/AcApDocManagerReactor.h"

template <class T>
class AcApDataManager : public AcApDocManagerReactor {
public:
    AcApDataManager() { acDocManager->addReactor(this); }
    ~AcApDataManager() override { acDocManager->removeReactor(this); }
    AcApDataManager(const AcApDataManager&) = delete;
    AcApDataManager& operator=(const AcApDataManager&) = delete;

    void documentToBeDestroyed(AcApDocument* document) override { m_dataMap.erase(document); }

    T& docData(AcApDocument* document) { return m_dataMap[document]; }
    T& docData() { return docData(acDocManager->curDocument()); }

    // Whether the document has a value yet, without making one.
    bool hasDocData(AcApDocument* document) const { return m_dataMap.count(document) != 0; }

private:
    std::map<AcApDocument*, T> m_dataMap;
};
