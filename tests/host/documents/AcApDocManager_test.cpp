#include "host/documents/AcApDocManager.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/base/AcString.h"
#include "host/database/AcDbDatabase.h"
#include "host/documents/AcApDocManagerReactor.h"
#include "host/documents/NoOpenDocuments.h"
#include "host/dxf/DxfTestFiles.h"

namespace {
// Writes down what it is told, one line per notification.
class RecordingReactor : public AcApDocManagerReactor {
public:
    RecordingReactor() { acDocManager->addReactor(this); }
    ~RecordingReactor() override { acDocManager->removeReactor(this); }
    void documentCreated(AcApDocument* d) override { log(L"created", d); }
    void documentToBeDestroyed(AcApDocument* d) override { log(L"toBeDestroyed", d); }
    void documentDestroyed(const ACHAR* fileName) override { events.push_back(std::wstring(L"destroyed ") + fileName); }
    void documentBecameCurrent(AcApDocument* d) override { log(L"current", d); }
    void documentToBeDeactivated(AcApDocument* d) override { log(L"toBeDeactivated", d); }
    void documentActivated(AcApDocument* d) override { log(L"activated", d); }
    void documentLockModeChanged(AcApDocument* d, AcAp::DocLockMode before, AcAp::DocLockMode after,
                                 AcAp::DocLockMode, const ACHAR* command) override {
        log(L"lock " + std::to_wstring(before) + L"->" + std::to_wstring(after) + L" " + command, d);
    }

    std::vector<std::wstring> events;

private:
    void log(const std::wstring& what, AcApDocument* d) { events.push_back(what + L" " + d->docTitle()); }
};

class AcApDocManagerTest : public NoOpenDocuments {};
}  // namespace

TEST_F(AcApDocManagerTest, TheWorkingDatabaseFollowsTheCurrentDocument) {
    EXPECT_EQ(acDocManager->curDocument(), nullptr);
    AcApDocument* first = newDocument();
    AcApDocument* second = newDocument();
    ASSERT_NE(first, second);
    EXPECT_EQ(acDocManager->documentCount(), 2);
    EXPECT_EQ(acDocManager->mdiActiveDocument(), second);
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), second->database());
    EXPECT_EQ(acDocManager->document(first->database()), first);
    // A new drawing is a default drawing with model space, named by a running number.
    EXPECT_FALSE(first->database()->modelSpaceId().isNull());
    EXPECT_EQ(std::wstring(first->fileName()).substr(0, 7), L"Drawing");
    EXPECT_NE(std::wstring(first->fileName()), std::wstring(second->fileName()));

    ASSERT_EQ(acDocManager->setCurDocument(first), Acad::eOk);
    EXPECT_EQ(acDocManager->curDocument(), first);
    EXPECT_EQ(acDocManager->mdiActiveDocument(), second);
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), first->database());
    ASSERT_EQ(acDocManager->activateDocument(second), Acad::eOk);
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), second->database());

    // Closing the current document makes the most recent other one current.
    ASSERT_EQ(acDocManager->closeDocument(second), Acad::eOk);
    EXPECT_EQ(acDocManager->curDocument(), first);
    EXPECT_EQ(acDocManager->mdiActiveDocument(), first);
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), first->database());
    ASSERT_EQ(acDocManager->closeDocument(first), Acad::eOk);
    EXPECT_EQ(acDocManager->curDocument(), nullptr);
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
    EXPECT_EQ(acDocManager->closeDocument(first), Acad::eNoDocument);
    EXPECT_EQ(acDocManager->setCurDocument(nullptr), Acad::eNoDocument);
}

TEST_F(AcApDocManagerTest, ReactorsHearOfCreationSwitchingAndClosingInOrder) {
    AcApDocument* first = newDocument();
    const std::wstring firstName = first->fileName();
    RecordingReactor reactor;
    AcApDocument* second = newDocument();
    const std::wstring s = second->docTitle(), f = first->docTitle();
    acDocManager->setCurDocument(first);
    acDocManager->setCurDocument(first);  // already current: nothing to tell
    acDocManager->closeDocument(first);
    EXPECT_EQ(reactor.events, (std::vector<std::wstring>{
                                  L"created " + s, L"toBeDeactivated " + f, L"current " + s, L"activated " + s,
                                  L"current " + f, L"toBeDestroyed " + f, L"destroyed " + firstName,
                                  L"current " + s}));
}

TEST_F(AcApDocManagerTest, LocksNestAndALockedDocumentStaysOpen) {
    AcApDocument* doc = newDocument();
    RecordingReactor reactor;
    EXPECT_EQ(doc->myLockMode(), AcAp::kNotLocked);
    ASSERT_EQ(acDocManager->lockDocument(doc, AcAp::kWrite, L"PLACE"), Acad::eOk);
    ASSERT_EQ(acDocManager->lockDocument(doc, AcAp::kRead), Acad::eOk);
    EXPECT_EQ(doc->lockCount(), 2);
    EXPECT_EQ(doc->myLockMode(), AcAp::kRead);
    EXPECT_EQ(acDocManager->closeDocument(doc), Acad::eLockViolation);
    ASSERT_EQ(acDocManager->unlockDocument(doc), Acad::eOk);
    EXPECT_EQ(doc->myLockMode(), AcAp::kWrite);
    ASSERT_EQ(acDocManager->unlockDocument(doc), Acad::eOk);
    EXPECT_EQ(acDocManager->unlockDocument(doc), Acad::eNotApplicable);
    EXPECT_EQ(acDocManager->lockDocument(doc, AcAp::kNone), Acad::eInvalidInput);
    const std::wstring t = doc->docTitle();
    EXPECT_EQ(reactor.events, (std::vector<std::wstring>{L"lock 2->4 PLACE " + t, L"lock 4->32  " + t,
                                                          L"lock 32->4  " + t, L"lock 4->2  " + t}));
    EXPECT_EQ(acDocManager->closeDocument(doc), Acad::eOk);
}

TEST_F(AcApDocManagerTest, IteratorWalksTheOpenDocumentsInOpeningOrder) {
    AcApDocument* a = newDocument();
    AcApDocument* b = newDocument();
    AcApDocumentIterator* it = acDocManager->newAcApDocumentIterator();
    std::vector<AcApDocument*> seen;
    for (; !it->done(); it->step()) seen.push_back(it->document());
    delete it;
    EXPECT_EQ(seen, (std::vector<AcApDocument*>{a, b}));
}

TEST_F(AcApDocManagerTest, AFileThatCannotBeReadOpensNothing) {
    newDocument();
    std::wstring error;
    EXPECT_NE(acDocManager->appContextOpenDocument(L"/no/such/folder/plan.dxf", &error), Acad::eOk);
    EXPECT_NE(error.find(L"plan.dxf"), std::wstring::npos) << error;
    EXPECT_EQ(acDocManager->documentCount(), 1);
    EXPECT_NE(acDocManager->appContextNewDocument(L"/no/such/template.dxf", &error), Acad::eOk);
    EXPECT_NE(acDocManager->appContextOpenDocument(L"", &error), Acad::eOk);
    EXPECT_EQ(acDocManager->documentCount(), 1);
}

TEST_F(AcApDocManagerTest, OpensASavedDrawingOnceAndMakesNewDrawingsFromATemplate) {
    const std::wstring path = acutUtf8ToWchar((dxfTestFolder() / "plan.dxf").string());
    AcApDocument* made = newDocument();
    AcDbObjectId layer;
    ASSERT_EQ(made->database()->addLayer(layer, L"WATER"), Acad::eOk);
    ASSERT_EQ(made->database()->dxfOut(path.c_str()), Acad::eOk);

    std::wstring error;
    ASSERT_EQ(acDocManager->appContextOpenDocument(path.c_str(), &error), Acad::eOk) << error;
    AcApDocument* opened = acDocManager->curDocument();
    EXPECT_EQ(std::wstring(opened->fileName()), path);
    EXPECT_EQ(std::wstring(opened->docTitle()), L"plan.dxf");
    EXPECT_FALSE(opened->database()->layerId(L"WATER").isNull());
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), opened->database());

    // An open drawing is not opened twice: it is brought to the front.
    acDocManager->activateDocument(made);
    ASSERT_EQ(acDocManager->appContextOpenDocument(path.c_str()), Acad::eOk);
    EXPECT_EQ(acDocManager->curDocument(), opened);
    EXPECT_EQ(acDocManager->documentCount(), 2);

    // A template's content starts a new, untitled drawing.
    ASSERT_EQ(acDocManager->appContextNewDocument(path.c_str(), &error), Acad::eOk) << error;
    AcApDocument* fromTemplate = acDocManager->curDocument();
    EXPECT_EQ(std::wstring(fromTemplate->fileName()).substr(0, 7), L"Drawing");
    EXPECT_FALSE(fromTemplate->database()->layerId(L"WATER").isNull());
    EXPECT_TRUE(fromTemplate->database()->filename().empty());
}
