#include "framework/longitudinal/CLSEditor.h"

#include <gtest/gtest.h>

#include "framework/cad/CXimoCDocLock.h"
#include "framework/utility/CUtility.h"
#include "host/database/AcDbDatabase.h"
#include "host/documents/AcApDocManager.h"
#include "host/input/acedGraphics.h"
#include "host/input/AcEdInputScript.h"
#include "host/input/AcEdScreen.h"
#include "host/input/acedSelectionSet.h"

using XimoGis::CXimoCDocLock;
using XimoGis::Longitudinal::CLSEditor;

namespace {
// A fresh document and input script for each test.
class CLSEditorTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(acDocManager->appContextNewDocument(), Acad::eOk);
        acedInputScript()->clear();
        acedScreen()->reset();
    }
    void TearDown() override {
        acedInputScript()->clear();
        acDocManager->closeDocument(acDocManager->curDocument());
    }
    std::size_t modelSpaceEntities() const {
        AcDbDatabase* db = acdbHostApplicationServices()->workingDatabase();
        AcDbBlockTableRecord* ms = nullptr;
        acdbOpenObject(ms, db->modelSpaceId(), AcDb::kForRead);
        std::size_t live = 0;
        for (const AcDbObjectId& id : ms->entityIds()) live += id.isErased() ? 0 : 1;
        ms->close();
        return live;
    }
};
}  // namespace

TEST_F(CLSEditorTest, GridBasePointIsPickedWithAPreviewAndLeavesNothingBehind) {
    acedInputScript()->addMove({50, 50, 0});
    acedInputScript()->addPick({100, 200, 0});
    AcGePoint3d base;
    ASSERT_EQ(CLSEditor::GetLSGridBP(3, 2, 210, 297, 10, 20, &base, CLSEditor::eGridBottomLeft), 1);
    EXPECT_TRUE(base.isEqualTo({100, 200, 0}));
    EXPECT_EQ(acedInputScript()->prompts().size(), 1u);  // one prompt for the drag
    EXPECT_TRUE(acedScreen()->transientVectors().empty());  // the preview went with the drag
    EXPECT_EQ(modelSpaceEntities(), 0u);  // the drag marker is gone
    EXPECT_EQ(acedSSOpenCount(), 0);
}

TEST_F(CLSEditorTest, CancellingOrAnEmptyGridGivesZero) {
    acedInputScript()->addEscape();
    AcGePoint3d base(1, 2, 3);
    EXPECT_EQ(CLSEditor::GetLSGridBP(2, 2, 210, 297, 5, 5, &base), 0);
    EXPECT_TRUE(base.isEqualTo({1, 2, 3}));
    EXPECT_EQ(CLSEditor::GetLSGridBP(2, 2, 210, 297, 5, 5, &base), 0);  // empty script cancels
    acedInputScript()->addPick({0, 0, 0});
    EXPECT_EQ(CLSEditor::GetLSGridBP(0, 2, 210, 297, 5, 5, &base), 0);
    EXPECT_EQ(CLSEditor::GetLSGridBP(2, 2, 210, 297, 5, 5, nullptr), 0);
    EXPECT_EQ(modelSpaceEntities(), 0u);
}

TEST_F(CLSEditorTest, CrossesAreTransientAndTheDocumentLocks) {
    XimoGis::Utility::CUtility::acedGrDrawCross({10, 10, 0}, 4.0, 1);
    ASSERT_EQ(acedScreen()->transientVectors().size(), 2u);
    acedRedraw(nullptr, 1);
    EXPECT_TRUE(acedScreen()->transientVectors().empty());

    AcApDocument* doc = acDocManager->curDocument();
    {
        CXimoCDocLock lock;
        EXPECT_TRUE(lock.IsLocked());
        EXPECT_EQ(doc->lockCount(), 1);
        EXPECT_EQ(acDocManager->closeDocument(doc), Acad::eLockViolation);
    }
    EXPECT_EQ(doc->lockCount(), 0);
}
