#include "module/instances/CASEventResponder.h"

#include "framework/TempFolder.h"
#include "module/instances/CASInstanceStorage.h"
#include "module/instances/SheetFixture.h"
#include "module/manager/CASManager.h"

#include "framework/systems/CSystemManager.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace XimoGis::AssemblySchemes;

namespace {

using ResponderTest = Testing::SheetFixture;

bool AllErased(const CASInstance& sheet) {
    AcDbObjectIdArray ids;
    sheet.GetDrawnEntities(ids);
    return std::all_of(ids.begin(), ids.end(), [](AcDbObjectId id) { return id.isErased(); });
}

}  // namespace

TEST_F(ResponderTest, DeletingASystemErasesTheSheetsOfEverySystemAndEmptiesTheStorage) {
    XimoGis::Testing::TempFolder folder;
    auto* systems = XimoGis::System::CSystemManager::Instance();
    std::wstring error;
    ASSERT_TRUE(systems->OpenWorkspace(folder.Text(), error, true)) << error;
    auto* vodovod = systems->CreateSystem(1, L"Vodovod", 8, {}, error);
    auto* plin = systems->CreateSystem(2, L"Plin", 4, {}, error);
    const auto ours = DrawSheet(vodovod, {0, 0, 0});
    AddElement(*ours, vodovod, L"{CAT-A}", L"", 50, 50);
    const auto theirs = DrawSheet(plin, {500, 0, 0});
    const auto storage = CASManager::Instance()->GetASIStorage();
    storage->AddASInstance(boost::make_shared<CASInstance>());  // not in the drawing: dropped too

    ASSERT_TRUE(systems->DeleteSystemEntities(plin, error)) << error;
    EXPECT_TRUE(storage->GetASRegistry().empty());
    EXPECT_TRUE(AllErased(*ours) && AllErased(*theirs));
    EXPECT_EQ(document->lockCount(), 0);
    const auto later = DrawSheet(vodovod, {0, 500, 0});
    ASSERT_TRUE(systems->DeleteSystem(plin, error)) << error;
    EXPECT_TRUE(AllErased(*later));
    systems->CloseWorkspace();
}
