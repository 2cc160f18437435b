#include "framework/workspace/CWorkspaceBuilder.h"

#include "framework/TempFolder.h"
#include "framework/systems/CSystemManager.h"
#include "framework/topology/CTopologyMultiStorage.h"
#include "framework/topology/NetworkFixture.h"
#include "framework/workspace/StoreQuery.h"

#include <gtest/gtest.h>

#include <filesystem>

using XimoGis::System::CSystemManager;
using XimoGis::Testing::QueryInt;
using XimoGis::Testing::TempFolder;
using XimoGis::Workspace::CWorkspaceBuilder;

namespace fs = std::filesystem;

namespace {

class CWorkspaceBuilderTest : public ::testing::Test {
protected:
    void SetUp() override {
        folder.Write("src/workspace.xml", "<workspace name=\"Small\" language=\"en\"/>");
        folder.Write("src/systems.xml", R"(<systems>
            <system id="3" name="Water" topologyType="8" active="1">
              <layer reference="SCHEME" name="W_SCHEME" color="7" linetype="Continuous"/>
              <network nodes="net/nodes.geojson" sections="net/sections.geojson"/>
            </system>
            <system id="4" name="Sewer" topologyType="4"/>
          </systems>)");
        folder.Write("src/net/nodes.geojson", XimoGis::Testing::kNodesJson);
        folder.Write("src/net/sections.geojson", XimoGis::Testing::kSectionsJson);
        folder.Write("src/systems/3/AS.xml", "<schemes version=\"1\"/>");
    }
    void TearDown() override { CSystemManager::Instance()->CloseWorkspace(); }

    std::wstring Source() const { return (folder.Path() / "src").wstring(); }
    std::wstring Target() const { return (folder.Path() / "ws").wstring(); }
    // What is left beside the workspace besides the workspace and its sources.
    std::size_t Leftovers() const {
        std::size_t count = 0;
        for (const auto& entry : fs::directory_iterator(folder.Path()))
            count += entry.path().filename() != "ws" && entry.path().filename() != "src";
        return count;
    }

    TempFolder folder;
    std::wstring error;
};

}  // namespace

TEST_F(CWorkspaceBuilderTest, BuildsTheSystemsTheirNetworksAndSubDocuments) {
    ASSERT_TRUE(CWorkspaceBuilder::Build(Target(), Source(), {}, error)) << error;
    auto* manager = CSystemManager::Instance();
    ASSERT_TRUE(manager->OpenWorkspace(Target(), error)) << error;
    ASSERT_EQ(manager->GetSystems()->GetCount(), 2u);
    auto* water = manager->GetActiveSystem();
    ASSERT_NE(water, nullptr);
    EXPECT_EQ(water->GetSystemId(), 3);
    EXPECT_EQ(water->GetLayerByReference(L"SCHEME")->GetLayerName(), L"W_SCHEME");
    const auto* topology = XimoGis::Topology::CTopologyMultiStorage::Instance()->GetTopology(water);
    ASSERT_NE(topology, nullptr);
    EXPECT_EQ(topology->GetNodes().size(), 4u);
    std::wstring xml;
    EXPECT_TRUE(water->GetSubXMLByReferenceId(L"AS", xml, error)) << error;
    EXPECT_EQ(Leftovers(), 0u);
}

TEST_F(CWorkspaceBuilderTest, BuildingAgainReplacesTheWorkspaceAndAFailedBuildKeepsIt) {
    ASSERT_TRUE(CWorkspaceBuilder::Build(Target(), Source(), {}, error)) << error;
    folder.Write("ws/logs/old.log", "from the first build");
    ASSERT_TRUE(CWorkspaceBuilder::Build(Target(), Source(), {}, error)) << error;
    EXPECT_FALSE(fs::exists(folder.Path() / "ws/logs/old.log"));

    folder.Write("ws/logs/old.log", "kept");
    folder.Write("src/net/sections.geojson", "{ broken");
    EXPECT_FALSE(CWorkspaceBuilder::Build(Target(), Source(), {}, error));
    EXPECT_NE(error.find(L"sections.geojson"), std::wstring::npos) << error;
    EXPECT_EQ(folder.Read("ws/logs/old.log"), "kept");
    EXPECT_EQ(QueryInt(folder.Path() / "ws/workspace.gpkg", "SELECT count(*) FROM network_3_sections"), 3);

    const CWorkspaceBuilder::Step refuse = [](const std::wstring&, std::wstring& e) {
        e = L"refused";
        return false;
    };
    EXPECT_FALSE(CWorkspaceBuilder::Build(Target(), L"", {refuse}, error));
    EXPECT_EQ(error, L"refused");
    EXPECT_EQ(folder.Read("ws/logs/old.log"), "kept");
    EXPECT_EQ(Leftovers(), 0u);
}

TEST_F(CWorkspaceBuilderTest, AnEmptyWorkspaceAndFoldersThatAreNotReplaced) {
    ASSERT_TRUE(CWorkspaceBuilder::Build(Target(), L"", {}, error)) << error;
    EXPECT_EQ(QueryInt(folder.Path() / "ws/workspace.gpkg", "SELECT count(*) FROM ximo_systems"), 0);
    ASSERT_TRUE(CSystemManager::Instance()->OpenWorkspace(Target(), error)) << error;

    folder.Write("documents/letter.txt", "not a workspace");
    EXPECT_FALSE(CWorkspaceBuilder::Build((folder.Path() / "documents").wstring(), L"", {}, error));
    EXPECT_NE(error.find(L"holds files but no workspace.xml; it is not replaced"), std::wstring::npos) << error;
    EXPECT_EQ(folder.Read("documents/letter.txt"), "not a workspace");

    folder.Write("src/systems.xml", "<systems><system id=\"x\" name=\"Bad\"/></systems>");
    EXPECT_FALSE(CWorkspaceBuilder::Build(Target(), Source(), {}, error));
    EXPECT_NE(error.find(L"systems.xml\""), std::wstring::npos) << error;
}
