#include "framework/systems/CSystemManager.h"

#include "framework/TempFolder.h"
#include "framework/config/CModuleConfiguration.h"
#include "framework/notification/CNotificationFramework.h"
#include "framework/workspace/CWorkspaceStore.h"
#include "framework/workspace/StoreQuery.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <filesystem>
#include <string>
#include <vector>

using XimoGis::CNotificationFramework;
using XimoGis::IFrameworkEventResponder;
using XimoGis::System::CGisSystem;
using XimoGis::System::CGisSystemLayer;
using XimoGis::System::CSystemManager;
using XimoGis::Testing::QueryInt;
using XimoGis::Testing::TempFolder;
using XimoGis::Workspace::CWorkspaceStore;

namespace {

const std::vector<CGisSystemLayer> kLayers = {
    CGisSystemLayer(L"SCHEME", L"AS_SCHEME", 7, L"Continuous"),
    CGisSystemLayer(L"SCHEME_NP", L"AS_SCHEME_NP", 1, L"Continuous"),
    CGisSystemLayer(L"04BOM", L"AS_BOM", 3, L"DASHED"),
};

// Writes the system notifications into a journal; answers `answer` to "Before" ones.
class Recorder : public IFrameworkEventResponder {
public:
    std::vector<std::wstring> journal;
    int answer = 1;

    int OnBeforeDeleteSystem(CGisSystem* s) override { return Log(L"before delete " + s->GetName(), answer); }
    int OnAfterDeleteSystem() override { return Log(L"after delete"); }
    int OnBeforeSystemEntitiesDeleted(CGisSystem* s) override {
        return Log(L"before entities " + s->GetName(), answer);
    }
    int OnAfterSystemEntitiesDeleted(CGisSystem* s) override { return Log(L"after entities " + s->GetName()); }
    int OnActiveSystemChanged(CGisSystem* s) override { return Log(L"active " + (s ? s->GetName() : L"none")); }

private:
    int Log(const std::wstring& line, int result = 1) {
        journal.push_back(line);
        return result;
    }
};

class SystemManagerTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(manager->OpenWorkspace(folder.Text(), error, true)) << error;
        water = manager->CreateSystem(1, L"Vodovod", 8, kLayers, error);
        sewer = manager->CreateSystem(2, L"Kanalizacija Čakovec", 4, kLayers, error);
        ASSERT_TRUE(water && sewer) << error;
        CNotificationFramework::Instance()->RegisterEventResponder(recorder);
    }
    void TearDown() override {
        CNotificationFramework::Instance()->UnregisterEventResponder(recorder.get());
        manager->CloseWorkspace();
    }
    int Query(const char* sql) const { return QueryInt(folder.Path() / "workspace.gpkg", sql); }

    TempFolder folder;
    std::wstring error;
    CSystemManager* manager = CSystemManager::Instance();
    boost::shared_ptr<Recorder> recorder = boost::make_shared<Recorder>();
    CGisSystem* water = nullptr;
    CGisSystem* sewer = nullptr;
};

}  // namespace

TEST_F(SystemManagerTest, SystemsAndLayersSurviveReopening) {
    ASSERT_TRUE(manager->SetActiveSystem(sewer, error)) << error;
    manager->CloseWorkspace();
    EXPECT_EQ(manager->GetSystems()->GetCount(), 0u);
    ASSERT_TRUE(manager->OpenWorkspace(folder.Text(), error)) << error;

    ASSERT_EQ(manager->GetSystems()->GetCount(), 2u);
    const CGisSystem* first = manager->GetSystems()->GetSystemList().front().get();
    EXPECT_EQ(first->GetSystemId(), 1);
    EXPECT_EQ(first->GetName(), L"Vodovod");
    EXPECT_EQ(first->GetLayers(), kLayers);
    const CGisSystem* active = manager->GetActiveSystem();
    ASSERT_NE(active, nullptr);
    EXPECT_EQ(active->GetName(), L"Kanalizacija Čakovec");
    EXPECT_EQ(active->GetTopologyType(), 4);
    EXPECT_EQ(std::filesystem::path(active->GetSubXMLPath(L"AS")), folder.Path() / "systems" / "2" / "AS.xml");

    // The tables as other GeoPackage readers see them.
    EXPECT_EQ(Query("SELECT count(*) FROM gpkg_contents WHERE data_type = 'attributes' "
                    "AND table_name IN ('ximo_systems', 'ximo_system_layers')"),
              2);
    EXPECT_EQ(Query("SELECT count(*) FROM ximo_system_layers WHERE system_id = 2"), 3);
    EXPECT_EQ(Query("SELECT system_id FROM ximo_systems WHERE active = 1"), 2);
    EXPECT_EQ(Query("SELECT count(*) FROM pragma_foreign_key_check"), 0);
}

TEST_F(SystemManagerTest, InvalidSystemsAreRefusedAndNothingIsWritten) {
    EXPECT_EQ(manager->CreateSystem(1, L"Again", 8, {}, error), nullptr);
    EXPECT_NE(error.find(L"taken by the system \"Vodovod\""), std::wstring::npos) << error;
    EXPECT_EQ(manager->CreateSystem(0, L"Zero", 8, {}, error), nullptr);
    auto twice = kLayers;
    twice.push_back(kLayers.front());
    EXPECT_EQ(manager->CreateSystem(5, L"Twice", 8, twice, error), nullptr);
    EXPECT_NE(error.find(L"\"SCHEME\" is given twice"), std::wstring::npos) << error;
    EXPECT_EQ(manager->CreateSystem(5, L"Colour", 8, {CGisSystemLayer(L"SCHEME", L"S", 256, L"X")}, error), nullptr);
    EXPECT_NE(error.find(L"colour index 256"), std::wstring::npos) << error;

    EXPECT_EQ(manager->GetSystems()->GetCount(), 2u);
    EXPECT_EQ(Query("SELECT count(*) FROM ximo_systems"), 2);
    EXPECT_EQ(Query("SELECT count(*) FROM ximo_system_layers"), 6);
}

TEST_F(SystemManagerTest, DeletingASystemRaisesItsEventsInOrder) {
    ASSERT_TRUE(manager->SetActiveSystem(water, error)) << error;
    ASSERT_TRUE(water->SetSubXMLByReferenceId(L"AS", L"<schemes/>", error)) << error;
    recorder->answer = 0;
    recorder->journal.clear();
    EXPECT_FALSE(manager->DeleteSystem(water, error));
    EXPECT_NE(error.find(L"cancelled"), std::wstring::npos) << error;
    EXPECT_EQ(recorder->journal, std::vector<std::wstring>{L"before delete Vodovod"});
    EXPECT_TRUE(std::filesystem::exists(folder.Path() / "systems" / "1" / "AS.xml"));

    recorder->answer = 1;
    recorder->journal.clear();
    ASSERT_TRUE(manager->DeleteSystem(water, error)) << error;
    EXPECT_EQ(recorder->journal,
              (std::vector<std::wstring>{L"before delete Vodovod", L"before entities Vodovod",
                                         L"after entities Vodovod", L"after delete", L"active none"}));
    EXPECT_EQ(manager->GetSystemById(1), nullptr);
    EXPECT_EQ(manager->GetActiveSystem(), nullptr);
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "systems" / "1"));
    EXPECT_EQ(Query("SELECT count(*) FROM ximo_systems"), 1);
    EXPECT_EQ(Query("SELECT count(*) FROM ximo_system_layers WHERE system_id = 1"), 0);
    EXPECT_EQ(Query("SELECT count(*) FROM ximo_system_layers WHERE system_id = 2"), 3);
}

TEST_F(SystemManagerTest, DeletingEntitiesEmptiesOnlyThatSystemsRows) {
    {
        CWorkspaceStore store;
        ASSERT_TRUE(store.Open((folder.Path() / "workspace.gpkg").wstring(), CWorkspaceStore::omReadWrite, error));
        ASSERT_TRUE(store.EnsureAttributeTable(
            "nodes", "CREATE TABLE nodes (fid INTEGER PRIMARY KEY AUTOINCREMENT, system_id INTEGER)", L"", error));
        ASSERT_TRUE(store.Execute("INSERT INTO nodes (system_id) VALUES (1), (2), (2)", error)) << error;
    }
    recorder->journal.clear();
    ASSERT_TRUE(manager->DeleteSystemEntities(water, error)) << error;
    EXPECT_EQ(recorder->journal, (std::vector<std::wstring>{L"before entities Vodovod", L"after entities Vodovod"}));
    EXPECT_EQ(Query("SELECT count(*) FROM nodes WHERE system_id = 1"), 0);
    EXPECT_EQ(Query("SELECT count(*) FROM nodes WHERE system_id = 2"), 2);
    EXPECT_EQ(Query("SELECT count(*) FROM ximo_system_layers WHERE system_id = 1"), 3);
}

TEST_F(SystemManagerTest, BadStoreKeepsThePreviousWorkspaceOpen) {
    TempFolder other;
    other.Write("workspace.gpkg", std::string(2048, '\x01'));
    EXPECT_FALSE(manager->OpenWorkspace(other.Text(), error));
    EXPECT_NE(error.find((other.Path() / "workspace.gpkg").wstring()), std::wstring::npos) << error;
    EXPECT_NE(error.find(L"damaged"), std::wstring::npos) << error;
    TempFolder empty;
    EXPECT_FALSE(manager->OpenWorkspace(empty.Text(), error));
    EXPECT_NE(error.find(L"does not exist"), std::wstring::npos) << error;
    XimoGis::CModuleConfiguration::Instance()->Close();
    EXPECT_FALSE(manager->OpenWorkspace(error));
    EXPECT_NE(error.find(L"No workspace is open"), std::wstring::npos) << error;
    EXPECT_EQ(manager->GetSystemById(1), water);
}
