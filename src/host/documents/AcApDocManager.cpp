#include "host/documents/AcApDocManager.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "host/base/AcString.h"
#include "host/database/AcDbDatabase.h"
#include "host/documents/AcApDocManagerReactor.h"

namespace {
// The same file, however the path is spelled; plain comparison when a path cannot be resolved.
bool samePath(const std::wstring& a, const std::wstring& b) {
    std::error_code ec;
    const std::filesystem::path pa(acutWcharToUtf8(a)), pb(acutWcharToUtf8(b));
    if (std::filesystem::exists(pa, ec) && std::filesystem::exists(pb, ec))
        return std::filesystem::equivalent(pa, pb, ec);
    return a == b;
}

// Reads a DXF file into a new database; error names the file when the reader did not.
std::unique_ptr<AcDbDatabase> readDrawing(const std::wstring& fileName, Acad::ErrorStatus& es, std::wstring* error) {
    auto database = std::make_unique<AcDbDatabase>(false);
    std::wstring why;
    es = database->dxfIn(fileName.c_str(), &why);
    if (es == Acad::eOk) return database;
    if (error) *error = why.empty() ? L"cannot read drawing \"" + fileName + L"\"" : why;
    return nullptr;
}
}  // namespace

AcApDocManager::AcApDocManager() {
    // Made first so that it outlives this manager: closing documents at exit still reaches it.
    acdbHostApplicationServices();
}

AcApDocManager::~AcApDocManager() {
    // At process exit nobody is left to hear about the documents: they simply go.
    m_reactors.clear();
    m_current = m_active = nullptr;
    m_documents.clear();
}

AcApDocManager* acDocManagerPtr() {
    static AcApDocManager manager;
    return &manager;
}

bool AcApDocManager::isOpen(const AcApDocument* document) const {
    return document && std::any_of(m_documents.begin(), m_documents.end(),
                                   [&](const auto& d) { return d.get() == document; });
}

AcApDocument* AcApDocManager::document(const AcDbDatabase* database) const {
    if (!database) return nullptr;
    for (const auto& d : m_documents)
        if (d->database() == database) return d.get();
    return nullptr;
}

AcApDocumentIterator* AcApDocManager::newAcApDocumentIterator() const {
    std::vector<AcApDocument*> documents;
    for (const auto& d : m_documents) documents.push_back(d.get());
    return new AcApDocumentIterator(std::move(documents));
}

template <class Notify>
void AcApDocManager::notify(Notify&& call) {
    // A reactor may add or remove reactors (itself included) while it is being told something.
    const std::vector<AcApDocManagerReactor*> reactors = m_reactors;
    for (AcApDocManagerReactor* reactor : reactors)
        if (std::find(m_reactors.begin(), m_reactors.end(), reactor) != m_reactors.end()) call(reactor);
}

void AcApDocManager::addReactor(AcApDocManagerReactor* reactor) {
    if (reactor && std::find(m_reactors.begin(), m_reactors.end(), reactor) == m_reactors.end())
        m_reactors.push_back(reactor);
}

void AcApDocManager::removeReactor(AcApDocManagerReactor* reactor) {
    m_reactors.erase(std::remove(m_reactors.begin(), m_reactors.end(), reactor), m_reactors.end());
}

void AcApDocManager::switchTo(AcApDocument* document, bool activate) {
    const bool activating = activate && m_active != document;
    if (activating && m_active) {
        AcApDocument* leaving = m_active;
        notify([&](AcApDocManagerReactor* r) { r->documentToBeDeactivated(leaving); });
    }
    if (activating) m_active = document;
    if (m_current != document) {
        m_current = document;
        acdbHostApplicationServices()->setWorkingDatabase(document ? document->database() : nullptr);
        if (document) notify([&](AcApDocManagerReactor* r) { r->documentBecameCurrent(document); });
    }
    if (activating && document) notify([&](AcApDocManagerReactor* r) { r->documentActivated(document); });
}

AcApDocument* AcApDocManager::addDocument(std::unique_ptr<AcDbDatabase> database, const std::wstring& fileName) {
    m_documents.push_back(std::unique_ptr<AcApDocument>(new AcApDocument(std::move(database), fileName)));
    AcApDocument* document = m_documents.back().get();
    notify([&](AcApDocManagerReactor* r) { r->documentCreated(document); });
    switchTo(document, true);
    return document;
}

Acad::ErrorStatus AcApDocManager::setCurDocument(AcApDocument* document, AcAp::DocLockMode mode, bool activate) {
    if (!isOpen(document)) return Acad::eNoDocument;
    switchTo(document, activate);
    return mode == AcAp::kNone ? Acad::eOk : lockDocument(document, mode);
}

Acad::ErrorStatus AcApDocManager::activateDocument(AcApDocument* document, bool) {
    if (!isOpen(document)) return Acad::eNoDocument;
    switchTo(document, true);
    return Acad::eOk;
}

Acad::ErrorStatus AcApDocManager::appContextNewDocument(const ACHAR* templateName, std::wstring* error) {
    std::unique_ptr<AcDbDatabase> database;
    if (templateName && *templateName) {
        Acad::ErrorStatus es = Acad::eOk;
        database = readDrawing(templateName, es, error);
        if (!database) return es;
        // A drawing made from a template is new: saving it must not overwrite the template.
        database->setFilename(L"");
    } else {
        database = std::make_unique<AcDbDatabase>(true);
    }
    addDocument(std::move(database), L"Drawing" + std::to_wstring(++m_untitledCount) + L".dwg");
    return Acad::eOk;
}

Acad::ErrorStatus AcApDocManager::appContextOpenDocument(const ACHAR* fileName, std::wstring* error) {
    if (!fileName || !*fileName) {
        if (error) *error = L"no drawing file name was given";
        return Acad::eInvalidInput;
    }
    for (const auto& d : m_documents) {
        if (samePath(d->fileName(), fileName)) {
            switchTo(d.get(), true);
            return Acad::eOk;
        }
    }
    Acad::ErrorStatus es = Acad::eOk;
    std::unique_ptr<AcDbDatabase> database = readDrawing(fileName, es, error);
    if (!database) return es;
    database->setFilename(fileName);
    addDocument(std::move(database), fileName);
    return Acad::eOk;
}

Acad::ErrorStatus AcApDocManager::closeDocument(AcApDocument* document) {
    if (!isOpen(document)) return Acad::eNoDocument;
    if (document->lockCount() > 0) return Acad::eLockViolation;
    notify([&](AcApDocManagerReactor* r) { r->documentToBeDestroyed(document); });
    const std::wstring fileName = document->fileName();
    const bool wasCurrent = m_current == document;
    const bool wasActive = m_active == document;
    const auto found = std::find_if(m_documents.begin(), m_documents.end(),
                                    [&](const auto& d) { return d.get() == document; });
    std::unique_ptr<AcApDocument> closing = std::move(*found);
    m_documents.erase(found);
    if (wasCurrent) {
        m_current = nullptr;
        acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    }
    if (wasActive) m_active = nullptr;
    closing.reset();
    notify([&](AcApDocManagerReactor* r) { r->documentDestroyed(fileName.c_str()); });
    if ((wasCurrent || wasActive) && !m_documents.empty()) switchTo(m_documents.back().get(), true);
    return Acad::eOk;
}

Acad::ErrorStatus AcApDocManager::lockDocument(AcApDocument* document, AcAp::DocLockMode mode,
                                               const ACHAR* globalCommandName, const ACHAR*, bool) {
    if (!isOpen(document)) return Acad::eNoDocument;
    if (mode == AcAp::kNone || mode == AcAp::kNotLocked) return Acad::eInvalidInput;
    const AcAp::DocLockMode previous = document->myLockMode();
    document->m_locks.push_back(mode);
    const ACHAR* command = globalCommandName ? globalCommandName : L"";
    notify([&](AcApDocManagerReactor* r) { r->documentLockModeChanged(document, previous, mode, mode, command); });
    return Acad::eOk;
}

Acad::ErrorStatus AcApDocManager::unlockDocument(AcApDocument* document) {
    if (!isOpen(document)) return Acad::eNoDocument;
    if (document->m_locks.empty()) return Acad::eNotApplicable;
    const AcAp::DocLockMode previous = document->myLockMode();
    document->m_locks.pop_back();
    const AcAp::DocLockMode current = document->myLockMode();
    notify([&](AcApDocManagerReactor* r) { r->documentLockModeChanged(document, previous, current, current, L""); });
    return Acad::eOk;
}
