#include "framework/systems/CSystemManager.h"

#include "framework/TempFolder.h"
#include "framework/notification/CNotificationFramework.h"
#include "framework/workspace/CStatement.h"
#include "framework/workspace/CWorkspaceStore.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <boost/make_shared.hpp>

#include <filesystem>
#include <string>
#include <vector>

using XimoGis::CNotificationFramework;
using XimoGis::IFrameworkEventResponder;
using XimoGis::System::CGisSystem;
using XimoGis::System::CGisSystemLayer;
using XimoGis::System::CSystemManager;
using XimoGis::Testing::TempFolder;
using XimoGis::Workspace::CWorkspaceStore;

namespace {

const std::vector<CGisSystemLayer> kLayers = {
    CGisSystemLayer(L"SCHEME", L"AS_SCHEME", 7, L"Continuous"),
    CGisSystemLayer(L"SCHEME_NP", L"AS_SCHEME_NP", 1, L"Continuous"),
    CGisSystemLayer(L"01SCHEME", L"AS_ELEMENTS", 5, L"Continuous"),
    CGisSystemLayer(L"04BOM", L"AS_BOM", 3, L"DASHED"),
};

// Writes every system notification into a journal; answers `answer` to "Before" ones.
class Recorder : public IFrameworkEventResponder {
public:
    std::vector<std::wstring> journal;
    int answer = 1;

    int OnAfterWorkspaceOpened(const wchar_t*) override { return Log(L"opened"); }
    int OnBeforeWorkspaceClosed(const wchar_t*) override { return Log(L"closing"); }
    int OnAfterCreateSystem(CGisSystem* s) override { return Log(L"created " + s->GetName()); }
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

int QueryInt(const std::filesystem::path& file, const std::string& sql) {
    sqlite3* db = nullptr;
    sqlite3_open_v2(file.string().c_str(), &db, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_stmt* stmt = nullptr;
    int value = -999;
    if (sqlite3_prepare_v2(db, sql.c_str(), -1, &stmt, nullptr) == SQLITE_OK && sqlite3_step(stmt) == SQLITE_ROW)
        value = sqlite3_column_int(stmt, 0);
    sqlite3_finalize(stmt);
    sqlite3_close(db);
    return value;
}

class SystemManagerTest : public ::testing::Test {
protected:
    void SetUp() override {
        std::wstring error;
        ASSERT_TRUE(manager->OpenWorkspace(folder.Text(), error, true)) << error;
        CNotificationFramework::Instance()->RegisterEventResponder(recorder);
    }
    void TearDown() override {
        CNotificationFramework::Instance()->UnregisterEventResponder(recorder.get());
        manager->CloseWorkspace();
    }
    std::filesystem::path Store() const { return folder.Path() / "workspace.gpkg"; }
    CGisSystem* Create(int id, const std::wstring& name, int topologyType = 8) {
        std::wstring error;
        CGisSystem* system = manager->CreateSystem(id, name, topologyType, kLayers, error);
        EXPECT_NE(system, nullptr) << error;
        return system;
    }

    TempFolder folder;
    CSystemManager* manager = CSystemManager::Instance();
    boost::shared_ptr<Recorder> recorder = boost::make_shared<Recorder>();
};

}  // namespace

TEST_F(SystemManagerTest, SystemsAndLayersSurviveReopening) {
    Create(1, L"Vodovod");
    Create(2, L"Kanalizacija Čakovec", 4);
    std::wstring error;
    ASSERT_TRUE(manager->SetActiveSystem(manager->GetSystemById(2), error)) << error;

    manager->CloseWorkspace();
    EXPECT_EQ(manager->GetSystems()->GetCount(), 0u);
    ASSERT_TRUE(manager->OpenWorkspace(folder.Text(), error)) << error;

    ASSERT_EQ(manager->GetSystems()->GetCount(), 2u);
    const CGisSystem* first = manager->GetSystems()->GetSystemList().front().get();
    EXPECT_EQ(first->GetSystemId(), 1);
    EXPECT_EQ(first->GetName(), L"Vodovod");
    EXPECT_EQ(first->GetTopologyType(), 8);
    EXPECT_EQ(first->GetLayers(), kLayers);
    const CGisSystem* active = manager->GetActiveSystem();
    ASSERT_NE(active, nullptr);
    EXPECT_EQ(active->GetName(), L"Kanalizacija Čakovec");
    EXPECT_EQ(active->GetTopologyType(), 4);
    EXPECT_EQ(active->GetLayerByReference(L"04BOM")->GetLinetypeName(), L"DASHED");
    EXPECT_EQ(std::filesystem::path(active->GetSubXMLPath(L"AS")), folder.Path() / "systems" / "2" / "AS.xml");

    // The tables as other GeoPackage readers see them.
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM gpkg_contents WHERE data_type = 'attributes' AND table_name "
                                "IN ('ximo_systems', 'ximo_system_layers')"),
              2);
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM ximo_system_layers WHERE system_id = 2"), 4);
    EXPECT_EQ(QueryInt(Store(), "SELECT system_id FROM ximo_systems WHERE active = 1"), 2);
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM pragma_foreign_key_check"), 0);
}

TEST_F(SystemManagerTest, InvalidSystemsAreRefusedAndNothingIsWritten) {
    Create(1, L"Vodovod");
    std::wstring error;
    EXPECT_EQ(manager->CreateSystem(1, L"Again", 8, {}, error), nullptr);
    EXPECT_NE(error.find(L"Vodovod"), std::wstring::npos) << error;
    EXPECT_EQ(manager->CreateSystem(0, L"Zero", 8, {}, error), nullptr);
    EXPECT_EQ(manager->CreateSystem(5, L"", 8, {}, error), nullptr);
    auto twice = kLayers;
    twice.push_back(kLayers.front());
    EXPECT_EQ(manager->CreateSystem(5, L"Twice", 8, twice, error), nullptr);
    EXPECT_NE(error.find(L"\"SCHEME\" is given twice"), std::wstring::npos) << error;
    EXPECT_EQ(manager->CreateSystem(5, L"Nameless", 8, {CGisSystemLayer(L"SCHEME", L"", 1, L"X")}, error), nullptr);
    EXPECT_EQ(manager->CreateSystem(5, L"Colour", 8, {CGisSystemLayer(L"SCHEME", L"S", 256, L"X")}, error), nullptr);
    EXPECT_NE(error.find(L"colour index 256"), std::wstring::npos) << error;

    EXPECT_EQ(manager->GetSystems()->GetCount(), 1u);
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM ximo_systems"), 1);
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM ximo_system_layers"), 4);
}

TEST_F(SystemManagerTest, DeletingASystemRaisesItsEventsInOrder) {
    Create(1, L"Vodovod");
    CGisSystem* sewer = Create(2, L"Kanalizacija");
    std::wstring error;
    ASSERT_TRUE(manager->SetActiveSystem(sewer, error)) << error;
    ASSERT_TRUE(sewer->SetSubXMLByReferenceId(L"AS", L"<schemes/>", error)) << error;
    recorder->journal.clear();

    ASSERT_TRUE(manager->DeleteSystem(sewer, error)) << error;
    EXPECT_EQ(recorder->journal,
              (std::vector<std::wstring>{L"before delete Kanalizacija", L"before entities Kanalizacija",
                                         L"after entities Kanalizacija", L"after delete", L"active none"}));
    EXPECT_EQ(manager->GetSystemById(2), nullptr);
    EXPECT_EQ(manager->GetActiveSystem(), nullptr);
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "systems" / "2"));
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM ximo_systems"), 1);
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM ximo_system_layers WHERE system_id = 2"), 0);
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM ximo_system_layers WHERE system_id = 1"), 4);
    EXPECT_FALSE(manager->DeleteSystem(sewer, error));
}

TEST_F(SystemManagerTest, RefusedDeletionChangesNothing) {
    CGisSystem* water = Create(1, L"Vodovod");
    std::wstring error;
    ASSERT_TRUE(water->SetSubXMLByReferenceId(L"AS", L"<schemes/>", error)) << error;
    recorder->answer = 0;
    recorder->journal.clear();

    EXPECT_FALSE(manager->DeleteSystem(water, error));
    EXPECT_NE(error.find(L"cancelled"), std::wstring::npos) << error;
    EXPECT_EQ(recorder->journal, std::vector<std::wstring>{L"before delete Vodovod"});
    EXPECT_EQ(manager->GetSystemById(1), water);
    EXPECT_TRUE(std::filesystem::exists(folder.Path() / "systems" / "1" / "AS.xml"));
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM ximo_systems"), 1);
}

TEST_F(SystemManagerTest, DeletingEntitiesEmptiesOnlyThatSystemsRows) {
    Create(1, L"Vodovod");
    CGisSystem* sewer = Create(2, L"Kanalizacija");
    {
        CWorkspaceStore store;
        std::wstring error;
        ASSERT_TRUE(store.Open(Store().wstring(), CWorkspaceStore::omReadWrite, error)) << error;
        ASSERT_TRUE(store.EnsureAttributeTable(
            "nodes", "CREATE TABLE nodes (fid INTEGER PRIMARY KEY AUTOINCREMENT, system_id INTEGER, name TEXT)", L"",
            error))
            << error;
        ASSERT_TRUE(store.Execute("INSERT INTO nodes (system_id, name) VALUES (1, 'a'), (2, 'b'), (2, 'c')", error));
    }
    recorder->journal.clear();
    std::wstring error;
    ASSERT_TRUE(manager->DeleteSystemEntities(sewer, error)) << error;
    EXPECT_EQ(recorder->journal,
              (std::vector<std::wstring>{L"before entities Kanalizacija", L"after entities Kanalizacija"}));
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM nodes WHERE system_id = 2"), 0);
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM nodes WHERE system_id = 1"), 1);
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM ximo_system_layers WHERE system_id = 2"), 4);
    EXPECT_EQ(manager->GetSystemById(2), sewer);
}

TEST_F(SystemManagerTest, BadStoreKeepsThePreviousWorkspaceOpen) {
    Create(1, L"Vodovod");
    TempFolder other;
    other.Write("workspace.gpkg", std::string(2048, '\x01'));
    const std::wstring broken = (other.Path() / "workspace.gpkg").wstring();
    std::wstring error;
    EXPECT_FALSE(manager->OpenWorkspace(other.Text(), error));
    EXPECT_NE(error.find(broken), std::wstring::npos) << error;
    EXPECT_NE(error.find(L"damaged"), std::wstring::npos) << error;

    TempFolder empty;
    EXPECT_FALSE(manager->OpenWorkspace(empty.Text(), error));
    EXPECT_NE(error.find(L"does not exist"), std::wstring::npos) << error;

    ASSERT_NE(manager->GetSystemById(1), nullptr);
    EXPECT_EQ(std::filesystem::path(manager->GetWorkspacePath()), folder.Path() / "");
}
