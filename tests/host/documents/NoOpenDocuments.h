#pragma once
// Base of the document tests: the document manager is one per process, so every test starts and
// ends with no document open.

#include <gtest/gtest.h>

#include "host/documents/AcApDocManager.h"

class NoOpenDocuments : public ::testing::Test {
protected:
    void SetUp() override { closeAll(); }
    void TearDown() override { closeAll(); }

    static void closeAll() {
        while (AcApDocument* d = acDocManager->curDocument()) {
            while (d->lockCount() > 0) acDocManager->unlockDocument(d);
            acDocManager->closeDocument(d);
        }
    }
    // A new empty drawing, which is then the current document.
    static AcApDocument* newDocument() {
        EXPECT_EQ(acDocManager->appContextNewDocument(), Acad::eOk);
        return acDocManager->curDocument();
    }
};
