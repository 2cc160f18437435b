#include "framework/catalog/CCatalogManager.h"

#include "framework/TempFolder.h"
#include "framework/catalog/CCatalogXml.h"
#include "framework/catalog/CatalogTags.h"
#include "framework/config/CModuleConfiguration.h"
#include "framework/demo/CDemoCatalog.h"
#include "framework/workspace/CWorkspaceStore.h"
#include "framework/workspace/StoreQuery.h"

#include <gtest/gtest.h>

#include <sqlite3.h>

using namespace XimoGis::Data;
using XimoGis::CModuleConfiguration;
using XimoGis::Demo::CDemoCatalog;
using XimoGis::Testing::QueryInt;
using XimoGis::Testing::TempFolder;
using XimoGis::Workspace::CWorkspaceStore;

namespace {

const std::wstring kName = L"ASSEMBLYSCHEMES_CATALOG";

// Fills a catalog with groups, nested groups, elements with shown and hidden values, and an
// item whose template is missing.
void BuildSample(CCatalog& catalog) {
    std::wstring e;
    CCatalogItem* fittings = catalog.AddItem(nullptr, L"{G-1}", L"Fittings", true, L"", e);
    CCatalogItem* tees = catalog.AddItem(fittings, L"{G-2}", L"Tees", true, L"", e);
    CCatalogItem* tee = catalog.AddItem(tees, L"{I-1}", L"T 100x80", false, CatalogTags::kElementBlockType, e);
    tee->GetProperty(L"AS_NOMINALDIAMETER")->SetValue(100.0);
    tee->GetProperty(L"AS_CATALOGNUM")->SetValue(L"T 100/80", L"T-100-080-16");
    tee->GetProperty(L"AS_CUSTOM1")->SetValue(L"Nodularni lijev Č/Ž");
    catalog.AddItem(tees, L"{I-2}", L"T 80x80", false, CatalogTags::kElementBlockType, e);
    catalog.AddItem(nullptr, L"{G-3}", L"Empty group", true, L"", e);
    catalog.AddItem(fittings, L"{I-3}", L"Odd one", false, L"NO_TEMPLATE", e);
}

class CatalogManagerTest : public ::testing::Test {
protected:
    void SetUp() override {
        folder.Write("workspace.xml", "<workspace name=\"Catalog test\"/>");
        ASSERT_TRUE(CModuleConfiguration::Instance()->Open(folder.Text(), error)) << error;
        CWorkspaceStore store;
        ASSERT_TRUE(store.Open(StorePath(), CWorkspaceStore::omCreate, error)) << error;
    }
    void TearDown() override {
        manager->DiscardCatalogs();
        CModuleConfiguration::Instance()->Close();
    }
    std::wstring StorePath() const { return CWorkspaceStore::PathInWorkspace(folder.Text()); }
    std::filesystem::path StoreFile() const { return folder.Path() / "workspace.gpkg"; }

    TempFolder folder;
    CCatalogManager* manager = CCatalogManager::Instance();
    std::wstring error;
};

TEST_F(CatalogManagerTest, ItemsTreeAndPropertiesSurviveSaveAndReload) {
    CCatalog* catalog = manager->GetCatalog(kName, error);
    ASSERT_NE(catalog, nullptr) << error;
    EXPECT_EQ(catalog->GetItemCount(), 0u);
    BuildSample(*catalog);
    ASSERT_TRUE(manager->SaveCatalog(kName, error)) << error;

    manager->DiscardCatalogs();
    const CCatalogItem* tee = manager->GetCatalogItem(kName, L"{I-1}");
    ASSERT_NE(tee, nullptr);
    EXPECT_EQ(tee->GetParentItem()->GetName(), L"Tees");
    EXPECT_EQ(tee->GetParentItem()->GetParentItem()->GetName(), L"Fittings");
    EXPECT_EQ(tee->GetProperty(L"AS_CATALOGNUM")->GetHiddenValue().GetText(), L"T-100-080-16");
    CCatalog expected(kName);
    BuildSample(expected);
    EXPECT_TRUE(*manager->GetCatalog(kName) == expected);

    // Readers of the GeoPackage see three attribute tables and one row per item.
    EXPECT_EQ(QueryInt(StoreFile(), "SELECT count(*) FROM gpkg_contents WHERE data_type = 'attributes' AND "
                                    "table_name LIKE 'ximo_catalog%'"),
              3);
    EXPECT_EQ(QueryInt(StoreFile(), "SELECT item_order FROM ximo_catalog_items WHERE item_id = '{I-2}'"), 1);
}

TEST_F(CatalogManagerTest, AMissingOrCorruptStoreOrFileGivesAnErrorNamingItAndNothingIsWritten) {
    folder.Write("bad.xml", "<catalog name=\"C\" version=\"1\"><item name=\"X\"><bogus/></item></catalog>");
    EXPECT_FALSE(manager->ImportCatalog(folder.Text(), (folder.Path() / "bad.xml").wstring(), error));
    EXPECT_NE(error.find(L"bad.xml"), std::wstring::npos) << error;
    EXPECT_EQ(QueryInt(StoreFile(), "SELECT count(*) FROM sqlite_master WHERE name LIKE 'ximo_catalog%'"), 0);

    std::filesystem::remove(StoreFile());
    EXPECT_EQ(manager->GetCatalog(kName, error), nullptr);
    EXPECT_NE(error.find(StorePath()), std::wstring::npos) << error;
    EXPECT_FALSE(manager->SaveCatalog(kName, error));
    EXPECT_FALSE(std::filesystem::exists(StoreFile()));

    folder.Write("workspace.gpkg", "this is not a database, not even close, but long enough to be read");
    const std::string before = folder.Read("workspace.gpkg");
    EXPECT_FALSE(manager->ImportCatalog(folder.Text(), CDemoCatalog::GetSourceFile(), error));
    EXPECT_NE(error.find(StorePath()), std::wstring::npos) << error;
    EXPECT_EQ(folder.Read("workspace.gpkg"), before);
}

TEST_F(CatalogManagerTest, DamagedRowsAreReportedWithTheStoreAndTheItem) {
    BuildSample(*manager->GetCatalog(kName));
    ASSERT_TRUE(manager->SaveCatalog(kName, error)) << error;
    const auto damage = [this](const char* sql) {
        sqlite3* db = nullptr;
        sqlite3_open(StoreFile().string().c_str(), &db);
        sqlite3_exec(db, sql, nullptr, nullptr, nullptr);
        sqlite3_close(db);
        manager->DiscardCatalogs();
    };
    damage("UPDATE ximo_catalog_items SET properties = '<ppsEx version=\"7\"/>' WHERE item_id = '{I-2}'");
    EXPECT_EQ(manager->GetCatalog(kName, error), nullptr);
    EXPECT_NE(error.find(StorePath()), std::wstring::npos) << error;
    EXPECT_NE(error.find(L"item \"T 80x80\" ({I-2})"), std::wstring::npos) << error;

    damage("UPDATE ximo_catalog_items SET parent_id = '{G-2}' WHERE item_id = '{G-1}'");  // a ring
    EXPECT_EQ(manager->GetCatalog(kName, error), nullptr);
    EXPECT_NE(error.find(L"not reachable from the root"), std::wstring::npos) << error;
}

TEST_F(CatalogManagerTest, FollowsTheWorkspaceOfTheModuleConfiguration) {
    ASSERT_NE(manager->GetCatalog(kName), nullptr);
    TempFolder second;  // a workspace without a store
    second.Write("workspace.xml", "<workspace/>");
    ASSERT_TRUE(CModuleConfiguration::Instance()->Open(second.Text(), error)) << error;
    EXPECT_EQ(manager->GetCatalog(kName, error), nullptr);
    EXPECT_NE(error.find(CWorkspaceStore::PathInWorkspace(second.Text())), std::wstring::npos) << error;
    CModuleConfiguration::Instance()->Close();
    EXPECT_EQ(manager->GetCatalog(kName, error), nullptr);
    EXPECT_NE(error.find(L"no workspace is open"), std::wstring::npos) << error;
}

TEST_F(CatalogManagerTest, ImportReplacesTheCatalogAndExportGivesItBackAsText) {
    BuildSample(*manager->GetCatalog(kName));
    ASSERT_TRUE(manager->SaveCatalog(kName, error)) << error;
    std::wstring name;
    ASSERT_TRUE(manager->ImportCatalog(folder.Text(), CDemoCatalog::GetSourceFile(), error, &name)) << error;
    EXPECT_EQ(name, kName);
    EXPECT_EQ(manager->GetCatalogItem(kName, L"{I-1}"), nullptr);  // the copy read before is dropped

    const std::wstring text = (folder.Path() / "export.xml").wstring();
    ASSERT_TRUE(CCatalogManager::ExportCatalog(folder.Text(), kName, text, error)) << error;
    const auto exported = CCatalogXml::Read(text, error);
    const auto shipped = CCatalogXml::Read(CDemoCatalog::GetSourceFile(), error);
    ASSERT_TRUE(exported && shipped) << error;
    EXPECT_TRUE(*exported == *shipped);
    EXPECT_TRUE(*exported == *manager->GetCatalog(kName));
    EXPECT_FALSE(CCatalogManager::ExportCatalog(folder.Text(), L"NONE", text, error));
    EXPECT_NE(error.find(L"holds no catalog \"NONE\""), std::wstring::npos) << error;
}

}  // namespace
