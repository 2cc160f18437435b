#include "host/documents/AcApDataManager.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/database/AcDbDatabase.h"
#include "host/documents/NoOpenDocuments.h"

namespace {
std::vector<std::wstring> g_log;

// Per-document data that notes when it goes and whether its document was still whole then.
struct DocData {
    DocData() : document(acDocManager->curDocument()) { g_log.push_back(L"made"); }
    ~DocData() {
        const bool intact = document && acDocManager->document(document->database()) == document;
        g_log.push_back(intact ? L"dropped, document intact" : L"dropped");
    }
    DocData(const DocData&) = delete;
    DocData& operator=(const DocData&) = delete;

    AcApDocument* document;
    int value = 0;
};

class AcApDataManagerTest : public NoOpenDocuments {
protected:
    void SetUp() override {
        NoOpenDocuments::SetUp();
        g_log.clear();
    }
};
}  // namespace

TEST_F(AcApDataManagerTest, OneValuePerDocumentMadeOnFirstUseAndDroppedAtClose) {
    AcApDataManager<DocData> data;
    AcApDocument* first = newDocument();
    EXPECT_FALSE(data.hasDocData(first));
    data.docData().value = 7;
    EXPECT_EQ(&data.docData(), &data.docData(first));
    EXPECT_EQ(data.docData().value, 7);
    EXPECT_EQ(g_log, std::vector<std::wstring>{L"made"});

    AcApDocument* second = newDocument();
    EXPECT_EQ(data.docData().value, 0);
    EXPECT_EQ(data.docData().document, second);
    acDocManager->setCurDocument(first);
    EXPECT_EQ(data.docData().value, 7);
    EXPECT_EQ(g_log.size(), 2u);

    // The data goes before its document does, so it can still reach the drawing.
    acDocManager->closeDocument(first);
    EXPECT_EQ(g_log, (std::vector<std::wstring>{L"made", L"made", L"dropped, document intact"}));
    EXPECT_TRUE(data.hasDocData(second));
}

TEST_F(AcApDataManagerTest, AManagerThatIsGoneHearsNothingMore) {
    AcApDocument* doc = newDocument();
    {
        AcApDataManager<DocData> data;
        data.docData(doc);
    }
    EXPECT_EQ(g_log, (std::vector<std::wstring>{L"made", L"dropped, document intact"}));
    // Closing after the manager went must not reach it.
    EXPECT_EQ(acDocManager->closeDocument(doc), Acad::eOk);
    EXPECT_EQ(g_log.size(), 2u);
}
