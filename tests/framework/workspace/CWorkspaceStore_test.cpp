#include "framework/workspace/CWorkspaceStore.h"

#include "framework/TempFolder.h"
#include "framework/workspace/CStatement.h"
#include "framework/workspace/CTransaction.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

using XimoGis::Testing::TempFolder;
using XimoGis::Workspace::CStatement;
using XimoGis::Workspace::CTransaction;
using XimoGis::Workspace::CWorkspaceStore;

namespace {

// Reads one integer through SQLite directly, independent of the store's own helpers.
int QueryInt(const std::filesystem::path& file, const char* sql) {
    sqlite3* db = nullptr;
    sqlite3_open_v2(file.string().c_str(), &db, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_stmt* stmt = nullptr;
    int value = -999;
    if (sqlite3_prepare_v2(db, sql, -1, &stmt, nullptr) == SQLITE_OK && sqlite3_step(stmt) == SQLITE_ROW)
        value = sqlite3_column_int(stmt, 0);
    sqlite3_finalize(stmt);
    sqlite3_close(db);
    return value;
}

}  // namespace

TEST(CWorkspaceStore, CreatesAGeoPackageWithTheCoreTables) {
    TempFolder folder;
    const std::wstring path = CWorkspaceStore::PathInWorkspace(folder.Text());
    EXPECT_EQ(path, (folder.Path() / "workspace.gpkg").wstring());
    {
        CWorkspaceStore store;
        std::wstring error;
        ASSERT_TRUE(store.Open(path, CWorkspaceStore::omCreate, error)) << error;
        EXPECT_FALSE(store.IsReadOnly());
    }
    const auto file = folder.Path() / "workspace.gpkg";
    EXPECT_EQ(QueryInt(file, "PRAGMA application_id"), 0x47504B47);
    EXPECT_EQ(QueryInt(file, "PRAGMA user_version"), 10300);
    EXPECT_EQ(QueryInt(file, "SELECT count(*) FROM gpkg_spatial_ref_sys WHERE srs_id IN (-1, 0, 4326)"), 3);
    EXPECT_EQ(QueryInt(file, "SELECT count(*) FROM gpkg_contents"), 0);
    EXPECT_EQ(QueryInt(file, "SELECT count(*) FROM gpkg_geometry_columns"), 0);
    EXPECT_EQ(QueryInt(file, "SELECT count(*) FROM pragma_integrity_check WHERE integrity_check = 'ok'"), 1);

    // Opening again keeps what is there.
    CWorkspaceStore again;
    std::wstring error;
    ASSERT_TRUE(again.Open(path, CWorkspaceStore::omCreate, error)) << error;
    EXPECT_TRUE(again.HasTable("gpkg_contents"));
}

TEST(CWorkspaceStore, MissingFileIsAnErrorUnlessCreated) {
    TempFolder folder;
    const std::wstring path = (folder.Path() / "workspace.gpkg").wstring();
    for (auto mode : {CWorkspaceStore::omReadOnly, CWorkspaceStore::omReadWrite}) {
        CWorkspaceStore store;
        std::wstring error;
        EXPECT_FALSE(store.Open(path, mode, error));
        EXPECT_NE(error.find(path), std::wstring::npos) << error;
        EXPECT_NE(error.find(L"does not exist"), std::wstring::npos) << error;
        EXPECT_FALSE(store.IsOpen());
    }
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "workspace.gpkg"));
}

TEST(CWorkspaceStore, DamagedFileIsReportedAndLeftUntouched) {
    TempFolder folder;
    const auto file = folder.Path() / "workspace.gpkg";
    const std::string garbage(4096, '\x5A');
    folder.Write("workspace.gpkg", garbage);
    for (auto mode : {CWorkspaceStore::omReadOnly, CWorkspaceStore::omReadWrite, CWorkspaceStore::omCreate}) {
        CWorkspaceStore store;
        std::wstring error;
        EXPECT_FALSE(store.Open(file.wstring(), mode, error));
        EXPECT_NE(error.find(file.wstring()), std::wstring::npos) << error;
        EXPECT_NE(error.find(L"damaged"), std::wstring::npos) << error;
    }
    EXPECT_EQ(folder.Read("workspace.gpkg"), garbage);
}

TEST(CWorkspaceStore, PlainSqliteDatabaseIsNotAGeoPackage) {
    TempFolder folder;
    const auto file = folder.Path() / "workspace.gpkg";
    sqlite3* db = nullptr;
    sqlite3_open(file.string().c_str(), &db);
    sqlite3_exec(db, "CREATE TABLE t (a INTEGER)", nullptr, nullptr, nullptr);
    sqlite3_close(db);

    CWorkspaceStore store;
    std::wstring error;
    EXPECT_FALSE(store.Open(file.wstring(), CWorkspaceStore::omCreate, error));
    EXPECT_NE(error.find(L"not a GeoPackage"), std::wstring::npos) << error;
    EXPECT_EQ(QueryInt(file, "SELECT count(*) FROM sqlite_master"), 1);
}

TEST(CWorkspaceStore, ReadOnlyStoreRefusesWrites) {
    TempFolder folder;
    const std::wstring path = (folder.Path() / "workspace.gpkg").wstring();
    std::wstring error;
    {
        CWorkspaceStore store;
        ASSERT_TRUE(store.Open(path, CWorkspaceStore::omCreate, error)) << error;
    }
    CWorkspaceStore store;
    ASSERT_TRUE(store.Open(path, CWorkspaceStore::omReadOnly, error)) << error;
    EXPECT_TRUE(store.IsReadOnly());
    CTransaction transaction(store);
    EXPECT_FALSE(transaction.IsActive());
    EXPECT_NE(transaction.GetError().find(L"reading only"), std::wstring::npos);
    EXPECT_FALSE(store.Execute("CREATE TABLE t (a INTEGER)", error));
    EXPECT_NE(error.find(L"read-only"), std::wstring::npos) << error;
}

TEST(CWorkspaceStore, LockedFileGivesAClearError) {
    TempFolder folder;
    const auto file = folder.Path() / "workspace.gpkg";
    std::wstring error;
    {
        CWorkspaceStore store;
        ASSERT_TRUE(store.Open(file.wstring(), CWorkspaceStore::omCreate, error)) << error;
    }
    sqlite3* other = nullptr;
    sqlite3_open(file.string().c_str(), &other);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);

    CWorkspaceStore store;
    store.SetBusyTimeout(50);
    EXPECT_FALSE(store.Open(file.wstring(), CWorkspaceStore::omReadWrite, error));
    EXPECT_NE(error.find(L"locked"), std::wstring::npos) << error;
    EXPECT_NE(error.find(file.wstring()), std::wstring::npos) << error;

    sqlite3_exec(other, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_close(other);
    EXPECT_TRUE(store.Open(file.wstring(), CWorkspaceStore::omReadWrite, error)) << error;
}

TEST(CWorkspaceStore, UncommittedTransactionLeavesNothing) {
    TempFolder folder;
    const auto file = folder.Path() / "workspace.gpkg";
    std::wstring error;
    CWorkspaceStore store;
    ASSERT_TRUE(store.Open(file.wstring(), CWorkspaceStore::omCreate, error)) << error;
    {
        CTransaction transaction(store);
        ASSERT_TRUE(transaction.IsActive()) << transaction.GetError();
        ASSERT_TRUE(store.EnsureAttributeTable("dropped", "CREATE TABLE dropped (fid INTEGER PRIMARY KEY AUTOINCREMENT)",
                                               L"", error));
    }
    EXPECT_FALSE(store.HasTable("dropped"));
    EXPECT_EQ(QueryInt(file, "SELECT count(*) FROM gpkg_contents"), 0);
}

TEST(CWorkspaceStore, AttributeTablesAreRegisteredOnce) {
    TempFolder folder;
    const auto file = folder.Path() / "workspace.gpkg";
    std::wstring error;
    CWorkspaceStore store;
    ASSERT_TRUE(store.Open(file.wstring(), CWorkspaceStore::omCreate, error)) << error;
    const char* create = "CREATE TABLE notes (fid INTEGER PRIMARY KEY AUTOINCREMENT, text TEXT)";
    CTransaction transaction(store);
    ASSERT_TRUE(store.EnsureAttributeTable("notes", create, L"Notes", error)) << error;
    ASSERT_TRUE(store.EnsureAttributeTable("notes", create, L"Notes", error)) << error;
    ASSERT_TRUE(store.TouchContents("notes", error)) << error;
    ASSERT_TRUE(transaction.Commit(error)) << error;

    EXPECT_TRUE(store.HasColumn("notes", "text"));
    EXPECT_FALSE(store.HasColumn("notes", "missing"));
    store.Close();
    EXPECT_EQ(QueryInt(file, "SELECT count(*) FROM gpkg_contents WHERE table_name = 'notes' "
                             "AND data_type = 'attributes' AND identifier = 'notes'"),
              1);
}

TEST(CWorkspaceStore, StatementsBindAndReadBackValues) {
    TempFolder folder;
    std::wstring error;
    CWorkspaceStore store;
    ASSERT_TRUE(store.Open((folder.Path() / "workspace.gpkg").wstring(), CWorkspaceStore::omCreate, error)) << error;
    ASSERT_TRUE(store.Execute("CREATE TABLE v (i INTEGER, b INTEGER, d REAL, t TEXT, n TEXT)", error)) << error;
    {
        CStatement insert(store, "INSERT INTO v VALUES (?, ?, ?, ?, ?)");
        insert.Bind(1, -7).Bind(2, std::int64_t{1} << 40).Bind(3, 2.5).Bind(4, std::wstring(L"Čvor šaht ž")).BindNull(5);
        ASSERT_TRUE(insert.Execute(error)) << error;
    }
    CStatement select(store, "SELECT i, b, d, t, n FROM v");
    ASSERT_TRUE(select.Next());
    EXPECT_EQ(select.GetInt(0), -7);
    EXPECT_EQ(select.GetInt64(1), std::int64_t{1} << 40);
    EXPECT_DOUBLE_EQ(select.GetDouble(2), 2.5);
    EXPECT_EQ(select.GetText(3), L"Čvor šaht ž");
    EXPECT_TRUE(select.IsNull(4));
    EXPECT_FALSE(select.Next());
    EXPECT_FALSE(select.Failed());

    CStatement broken(store, "SELECT nothing FROM nowhere");
    EXPECT_FALSE(broken.IsValid());
    EXPECT_FALSE(broken.Next());
    EXPECT_TRUE(broken.Failed());
    EXPECT_NE(broken.GetError().find(L"nowhere"), std::wstring::npos);
    EXPECT_NE(broken.GetError().find((folder.Path() / "workspace.gpkg").wstring()), std::wstring::npos);
}
