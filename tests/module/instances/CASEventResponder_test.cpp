#include "module/instances/CASEventResponder.h"

#include "framework/TempFolder.h"
#include "module/instances/CASInstanceStorage.h"
#include "module/instances/SheetFixture.h"
#include "module/manager/CASManager.h"

#include "framework/systems/CSystemManager.h"

#include <gtest/gtest.h>

using namespace XimoGis::AssemblySchemes;
using XimoGis::System::CGisSystem;
using XimoGis::System::CSystemManager;

namespace {

// Sheets of two systems of a workspace in the current drawing.
class ResponderTest : public Testing::SheetFixture {
protected:
    void SetUp() override {
        Testing::SheetFixture::SetUp();
        std::wstring error;
        ASSERT_TRUE(systems->OpenWorkspace(folder.Text(), error, true)) << error;
        vodovod = systems->CreateSystem(1, L"Vodovod", 8, {}, error);
        plin = systems->CreateSystem(2, L"Plin", 4, {}, error);
        ASSERT_TRUE(vodovod && plin) << error;
        CASManager::Instance();  // registers the responder
    }
    void TearDown() override {
        systems->CloseWorkspace();
        Testing::SheetFixture::TearDown();
    }
    // Every entity of the sheet and its elements.
    static AcDbObjectIdArray Entities(const CASInstance& sheet) {
        AcDbObjectIdArray ids;
        sheet.GetDrawnEntities(ids);
        return ids;
    }

    XimoGis::Testing::TempFolder folder;
    CSystemManager* systems = CSystemManager::Instance();
    CGisSystem* vodovod = nullptr;
    CGisSystem* plin = nullptr;
};

}  // namespace

TEST_F(ResponderTest, DeletingASystemErasesTheSheetsOfEverySystemAndEmptiesTheStorage) {
    const auto water = DrawSheet(vodovod, {0, 0, 0});
    AddElement(*water, vodovod, L"{CAT-A}", L"", 50, 50);
    const auto gas = DrawSheet(plin, {500, 0, 0});
    const auto storage = CASManager::Instance()->GetASIStorage();
    storage->AddASInstance(boost::make_shared<CASInstance>());  // not in the drawing: dropped too

    std::wstring error;
    ASSERT_TRUE(systems->DeleteSystemEntities(plin, error)) << error;
    EXPECT_TRUE(storage->GetASRegistry().empty());
    for (const auto& sheet : {water, gas}) {
        for (const AcDbObjectId& id : Entities(*sheet)) EXPECT_TRUE(id.isErased());
    }
    EXPECT_EQ(document->lockCount(), 0);

    // Deleting the system itself does the same for sheets drawn since.
    const auto later = DrawSheet(vodovod, {0, 500, 0});
    ASSERT_TRUE(systems->DeleteSystem(plin, error)) << error;
    for (const AcDbObjectId& id : Entities(*later)) EXPECT_TRUE(id.isErased());
    EXPECT_TRUE(storage->GetASRegistry().empty());
    EXPECT_EQ(CASEventResponder().OnAfterDeleteSystem(), 1);
}
