#include "framework/workspace/CWorkspaceStore.h"

#include "framework/TempFolder.h"
#include "framework/workspace/CStatement.h"
#include "framework/workspace/CTransaction.h"
#include "framework/workspace/StoreQuery.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

using XimoGis::Testing::QueryInt;
using XimoGis::Testing::TempFolder;
using XimoGis::Workspace::CStatement;
using XimoGis::Workspace::CTransaction;
using XimoGis::Workspace::CWorkspaceStore;

namespace {

class WorkspaceStoreTest : public ::testing::Test {
protected:
    std::wstring Path() const { return file.wstring(); }
    void Create() {
        CWorkspaceStore store;
        ASSERT_TRUE(store.Open(Path(), CWorkspaceStore::omCreate, error)) << error;
    }

    TempFolder folder;
    std::filesystem::path file = folder.Path() / "workspace.gpkg";
    std::wstring error;
};

}  // namespace

TEST_F(WorkspaceStoreTest, CreatesAGeoPackageWithTheCoreTables) {
    EXPECT_EQ(CWorkspaceStore::PathInWorkspace(folder.Text() + L"/"), Path());
    Create();
    EXPECT_EQ(QueryInt(file, "PRAGMA application_id"), 0x47504B47);
    EXPECT_EQ(QueryInt(file, "PRAGMA user_version"), 10300);
    EXPECT_EQ(QueryInt(file, "SELECT count(*) FROM gpkg_spatial_ref_sys WHERE srs_id IN (-1, 0, 4326)"), 3);
    EXPECT_EQ(QueryInt(file, "SELECT count(*) FROM gpkg_contents, gpkg_geometry_columns"), 0);
    EXPECT_EQ(QueryInt(file, "SELECT count(*) FROM pragma_integrity_check WHERE integrity_check = 'ok'"), 1);
}

TEST_F(WorkspaceStoreTest, MissingDamagedOrForeignFilesAreReportedAndLeftAlone) {
    CWorkspaceStore store;
    EXPECT_FALSE(store.Open(Path(), CWorkspaceStore::omReadWrite, error));
    EXPECT_NE(error.find(L"\"" + Path() + L"\": the file does not exist"), std::wstring::npos) << error;
    EXPECT_FALSE(std::filesystem::exists(file));

    const std::string garbage(4096, '\x5A');
    folder.Write("workspace.gpkg", garbage);
    for (auto mode : {CWorkspaceStore::omReadOnly, CWorkspaceStore::omCreate}) {
        EXPECT_FALSE(store.Open(Path(), mode, error));
        EXPECT_NE(error.find(Path()), std::wstring::npos) << error;
        EXPECT_NE(error.find(L"damaged"), std::wstring::npos) << error;
    }
    EXPECT_EQ(folder.Read("workspace.gpkg"), garbage);

    std::filesystem::remove(file);
    sqlite3* db = nullptr;
    sqlite3_open(file.string().c_str(), &db);
    sqlite3_exec(db, "CREATE TABLE t (a INTEGER)", nullptr, nullptr, nullptr);
    sqlite3_close(db);
    EXPECT_FALSE(store.Open(Path(), CWorkspaceStore::omCreate, error));
    EXPECT_NE(error.find(L"not a GeoPackage"), std::wstring::npos) << error;
    EXPECT_EQ(QueryInt(file, "SELECT count(*) FROM sqlite_master"), 1);
}

TEST_F(WorkspaceStoreTest, ReadOnlyStoreRefusesWrites) {
    Create();
    CWorkspaceStore store;
    ASSERT_TRUE(store.Open(Path(), CWorkspaceStore::omReadOnly, error)) << error;
    CTransaction transaction(store);
    EXPECT_FALSE(transaction.IsActive());
    EXPECT_NE(transaction.GetError().find(L"reading only"), std::wstring::npos);
    EXPECT_FALSE(store.Execute("CREATE TABLE t (a INTEGER)", error));
    EXPECT_NE(error.find(L"read-only"), std::wstring::npos) << error;
}

TEST_F(WorkspaceStoreTest, LockedFileGivesAClearError) {
    Create();
    sqlite3* other = nullptr;
    sqlite3_open(file.string().c_str(), &other);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    CWorkspaceStore store;
    store.SetBusyTimeout(50);
    EXPECT_FALSE(store.Open(Path(), CWorkspaceStore::omReadWrite, error));
    EXPECT_NE(error.find(L"\"" + Path() + L"\""), std::wstring::npos) << error;
    EXPECT_NE(error.find(L"locked"), std::wstring::npos) << error;
    sqlite3_close(other);
    EXPECT_TRUE(store.Open(Path(), CWorkspaceStore::omReadWrite, error)) << error;
}

TEST_F(WorkspaceStoreTest, AttributeTablesAreRegisteredOnlyWhenCommitted) {
    Create();
    CWorkspaceStore store;
    ASSERT_TRUE(store.Open(Path(), CWorkspaceStore::omReadWrite, error)) << error;
    const char* create = "CREATE TABLE notes (fid INTEGER PRIMARY KEY AUTOINCREMENT, text TEXT)";
    {
        CTransaction dropped(store);
        ASSERT_TRUE(store.EnsureAttributeTable("notes", create, L"Notes", error)) << error;
    }
    EXPECT_FALSE(store.HasTable("notes"));
    CTransaction transaction(store);
    ASSERT_TRUE(store.EnsureAttributeTable("notes", create, L"Notes", error)) << error;
    ASSERT_TRUE(store.EnsureAttributeTable("notes", create, L"Notes", error)) << error;
    ASSERT_TRUE(transaction.Commit(error)) << error;
    EXPECT_TRUE(store.HasColumn("notes", "text"));
    EXPECT_FALSE(store.HasColumn("notes", "missing"));
    EXPECT_EQ(QueryInt(file,
                       "SELECT count(*) FROM gpkg_contents WHERE table_name = 'notes' "
                       "AND data_type = 'attributes' AND identifier = 'notes'"),
              1);
}

TEST_F(WorkspaceStoreTest, StatementsBindAndReadBackValues) {
    Create();
    CWorkspaceStore store;
    ASSERT_TRUE(store.Open(Path(), CWorkspaceStore::omReadWrite, error)) << error;
    ASSERT_TRUE(store.Execute("CREATE TABLE v (i INTEGER, b INTEGER, d REAL, t TEXT, n TEXT)", error)) << error;
    CStatement insert(store, "INSERT INTO v VALUES (?, ?, ?, ?, ?)");
    insert.Bind(1, -7).Bind(2, std::int64_t{1} << 40).Bind(3, 2.5).Bind(4, std::wstring(L"Čvor šaht")).BindNull(5);
    ASSERT_TRUE(insert.Execute(error)) << error;

    CStatement select(store, "SELECT i, b, d, t, n FROM v");
    ASSERT_TRUE(select.Next());
    EXPECT_EQ(select.GetInt(0), -7);
    EXPECT_EQ(select.GetInt64(1), std::int64_t{1} << 40);
    EXPECT_DOUBLE_EQ(select.GetDouble(2), 2.5);
    EXPECT_EQ(select.GetText(3), L"Čvor šaht");
    EXPECT_TRUE(select.IsNull(4));
    EXPECT_FALSE(select.Next() || select.Failed());

    CStatement broken(store, "SELECT nothing FROM nowhere");
    EXPECT_FALSE(broken.Next());
    EXPECT_TRUE(broken.Failed());
    EXPECT_NE(broken.GetError().find(L"\"" + Path() + L"\": cannot prepare"), std::wstring::npos) << broken.GetError();
}
