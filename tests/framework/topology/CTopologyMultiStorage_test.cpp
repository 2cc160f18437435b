#include "framework/topology/CTopologyMultiStorage.h"

#include "framework/notification/CNotificationFramework.h"
#include "framework/topology/NetworkFixture.h"

#include <sqlite3.h>

#include <fstream>

using XimoGis::CNotificationFramework;
using XimoGis::IFrameworkEventResponder;
using XimoGis::System::CSystemManager;
using XimoGis::Topology::CNetworkImport;
using XimoGis::Topology::CTopologyMultiStorage;

using CTopologyMultiStorageTest = XimoGis::Testing::NetworkFixture;

TEST_F(CTopologyMultiStorageTest, ReadsASystemsNetworkOnceAndAgainAfterItChanged) {
    auto* storages = CTopologyMultiStorage::Instance();
    auto* topology = storages->GetTopology(system);
    ASSERT_NE(topology, nullptr) << storages->GetLastError();
    EXPECT_EQ(storages->GetTopology(1), topology);
    EXPECT_NE(topology->GetNodeByGuid(L"{H1}"), nullptr);

    std::string renamed = XimoGis::Testing::kNodesJson;
    renamed.replace(renamed.find("\"name\": \"H1\""), 12, "\"name\": \"H2\"");
    folder.Write("renamed.geojson", renamed);
    ASSERT_TRUE(CNetworkImport::Import(*system, File("renamed.geojson"), File("sections.geojson"), error)) << error;
    EXPECT_EQ(storages->GetTopology(1)->GetNodeByGuid(L"{H1}")->GetName(), L"H2");

    // A node changed by another module is read again after its notification, not before.
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(Store().string().c_str(), &other), SQLITE_OK);
    sqlite3_exec(other, "UPDATE network_1_nodes SET name = 'H3' WHERE guid = '{H1}'", nullptr, nullptr, nullptr);
    sqlite3_close(other);
    EXPECT_EQ(storages->GetTopology(1)->GetNodeByGuid(L"{H1}")->GetName(), L"H2");
    CNotificationFramework::Instance()->NotifyResponders(
        [this](IFrameworkEventResponder& r) { return r.OnAfterNodeModified(system, L"{H1}"); });
    EXPECT_EQ(storages->GetTopology(1)->GetNodeByGuid(L"{H1}")->GetName(), L"H3");
    EXPECT_EQ(storages->GetTopology(7)->GetNodes().size(), 0u);  // a system without layers has an empty network
}

TEST_F(CTopologyMultiStorageTest, ADamagedOrMissingStoreGivesNoNetworkAndSaysWhy) {
    auto* storages = CTopologyMultiStorage::Instance();
    CSystemManager::Instance()->CloseWorkspace();
    EXPECT_EQ(storages->GetTopology(1), nullptr);  // a closed workspace
    EXPECT_EQ(storages->GetLastError(), L"No workspace is open");
    ASSERT_TRUE(CSystemManager::Instance()->OpenWorkspace(folder.Text(), error)) << error;
    system = CSystemManager::Instance()->GetSystemById(1);

    std::ofstream(Store(), std::ios::binary | std::ios::in) << std::string(512, '\x66');  // overwrite the header
    EXPECT_EQ(storages->GetTopology(system), nullptr);
    EXPECT_NE(storages->GetLastError().find(Store().wstring()), std::wstring::npos) << storages->GetLastError();
    std::filesystem::remove(Store());
    EXPECT_EQ(storages->GetTopology(system), nullptr);
    EXPECT_NE(storages->GetLastError().find(L"the file does not exist"), std::wstring::npos);
    EXPECT_EQ(storages->GetTopology(nullptr), nullptr);
    EXPECT_FALSE(std::filesystem::exists(Store()));  // reading never creates the file
}
