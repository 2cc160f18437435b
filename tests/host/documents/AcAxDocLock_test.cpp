#include "host/documents/AcAxDocLock.h"

#include <gtest/gtest.h>

#include "host/database/AcDbDatabase.h"
#include "host/documents/NoOpenDocuments.h"

using AcAxDocLockTest = NoOpenDocuments;

TEST_F(AcAxDocLockTest, LocksTheWorkingDocumentForItsLifetimeAndNests) {
    AcApDocument* doc = newDocument();
    {
        AcAxDocLock outer;
        ASSERT_EQ(outer.lockStatus(), Acad::eOk);
        EXPECT_EQ(outer.document(), doc);
        {
            AcAxDocLock inner(doc->database());
            EXPECT_EQ(doc->lockCount(), 2);
            EXPECT_EQ(doc->myLockMode(), AcAp::kWrite);
        }
        EXPECT_EQ(doc->lockCount(), 1);
    }
    EXPECT_EQ(doc->lockCount(), 0);
}

TEST_F(AcAxDocLockTest, ADatabaseOfNoDocumentCannotBeLocked) {
    AcDbDatabase loose;
    AcAxDocLock lock(&loose);
    EXPECT_EQ(lock.lockStatus(), Acad::eNoDocument);
    EXPECT_EQ(lock.document(), nullptr);
}

TEST_F(AcAxDocLockTest, SwitchingLocksMakeTheDocumentCurrentForTheirLifetime) {
    AcApDocument* first = newDocument();
    AcApDocument* second = newDocument();
    const AcDbObjectId inFirst = first->database()->modelSpaceId();
    {
        AcAxDocLock lock(inFirst, AcAxDocLock::kCurDocSwitch);
        ASSERT_EQ(lock.lockStatus(), Acad::eOk);
        EXPECT_EQ(acDocManager->curDocument(), first);
        EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), first->database());
        EXPECT_EQ(first->lockCount(), 1);
    }
    EXPECT_EQ(acDocManager->curDocument(), second);
    EXPECT_EQ(first->lockCount(), 0);
    {
        AcAxDocLock lock(inFirst);
        EXPECT_EQ(acDocManager->curDocument(), second);
    }
}
