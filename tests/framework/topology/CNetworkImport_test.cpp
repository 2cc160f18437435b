#include "framework/topology/CNetworkImport.h"

#include "framework/topology/NetworkFixture.h"
#include "framework/workspace/StoreQuery.h"

#include <sqlite3.h>

#include <fstream>

using XimoGis::Testing::QueryInt;
using XimoGis::Topology::CNetworkImport;

using CNetworkImportTest = XimoGis::Testing::NetworkFixture;

TEST_F(CNetworkImportTest, SectionsMustEndAtTheirNodesOrNothingIsWritten) {
    std::string moved = XimoGis::Testing::kSectionsJson;
    moved.replace(moved.find("[1000, 2050]"), 12, "[1000, 2049]");
    folder.Write("moved.geojson", moved);
    EXPECT_FALSE(CNetworkImport::Import(*system, File("nodes.geojson"), File("moved.geojson"), error));
    EXPECT_NE(error.find(L"moved.geojson\": section {S3} does not reach its node {H1}"), std::wstring::npos) << error;

    std::string stray = XimoGis::Testing::kSectionsJson;
    stray.replace(stray.find("\"{H1}\""), 6, "\"{H9}\"");
    folder.Write("stray.geojson", stray);
    EXPECT_FALSE(CNetworkImport::Import(*system, File("nodes.geojson"), File("stray.geojson"), error));
    EXPECT_NE(error.find(L"names node {H9}, which is not in the nodes"), std::wstring::npos) << error;
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM network_1_sections"), 3);
}

TEST_F(CNetworkImportTest, ALockedStoreIsReportedAndKeepsItsLayers) {
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(Store().string().c_str(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    std::string fewer = XimoGis::Testing::kSectionsJson;
    folder.Write("fewer.geojson", fewer.replace(fewer.find(",\n    { \"type\": \"Feature\", \"geometry\": { \"type\": "
                                                           "\"LineString\", \"coordinates\": [[1000, 2000], [1000"),
                                                std::string::npos, "]}"));
    EXPECT_FALSE(CNetworkImport::Import(*system, File("nodes.geojson"), File("fewer.geojson"), error));
    EXPECT_NE(error.find(Store().wstring()), std::wstring::npos) << error;
    EXPECT_NE(error.find(L"locked"), std::wstring::npos) << error;
    sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr);
    sqlite3_close(other);
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM network_1_sections"), 3);
    ASSERT_TRUE(CNetworkImport::Import(*system, File("nodes.geojson"), File("fewer.geojson"), error)) << error;
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM network_1_sections"), 2);
}

TEST_F(CNetworkImportTest, ADamagedStoreIsNamedAndLeftAsItWas) {
    {
        std::fstream store(Store(), std::ios::binary | std::ios::in | std::ios::out);
        store.seekp(100);
        store << std::string(4000, '\x5A');
    }
    const std::string before = folder.Read("workspace.gpkg");
    EXPECT_FALSE(CNetworkImport::Import(*system, File("nodes.geojson"), File("sections.geojson"), error));
    EXPECT_NE(error.find(Store().wstring()), std::wstring::npos) << error;
    EXPECT_EQ(folder.Read("workspace.gpkg"), before);
}
