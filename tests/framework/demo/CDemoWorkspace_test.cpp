#include "framework/demo/CDemoWorkspace.h"

#include "framework/TempFolder.h"
#include "framework/catalog/CCatalogManager.h"
#include "framework/config/CModuleConfiguration.h"
#include "framework/data/CDataRW.h"
#include "framework/systems/CSystemManager.h"
#include "framework/topology/CTopologyMultiStorage.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>

using namespace XimoGis;

namespace {

// Output of the sqlite3 program for one query; empty when the program is missing.
std::string Sqlite3(const std::filesystem::path& file, const std::string& sql) {
    const std::string command = "sqlite3 '" + file.string() + "' \"" + sql + "\" 2>/dev/null";
    std::string out;
    if (FILE* pipe = popen(command.c_str(), "r")) {
        char buffer[256];
        while (fgets(buffer, sizeof buffer, pipe)) out += buffer;
        pclose(pipe);
    }
    return out;
}

class CDemoWorkspaceTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        folder = new Testing::TempFolder;
        std::wstring error;
        built = Demo::CDemoWorkspace::Build((folder->Path() / "demo").wstring(), error);
        buildError = error;
    }
    static void TearDownTestSuite() {
        delete folder;
        folder = nullptr;
    }
    void SetUp() override {
        ASSERT_TRUE(built) << buildError;
        const std::wstring workspace = (folder->Path() / "demo").wstring();
        ASSERT_TRUE(CModuleConfiguration::Instance()->Open(workspace, error)) << error;
        ASSERT_TRUE(System::CSystemManager::Instance()->OpenWorkspace(workspace, error)) << error;
    }
    void TearDown() override {
        System::CSystemManager::Instance()->CloseWorkspace();
        CModuleConfiguration::Instance()->Close();
    }
    const Topology::CTopologyStorage* Network(int systemId) const {
        return Topology::CTopologyMultiStorage::Instance()->GetTopology(systemId);
    }

    static Testing::TempFolder* folder;
    static bool built;
    static std::wstring buildError;
    std::wstring error;
};

Testing::TempFolder* CDemoWorkspaceTest::folder = nullptr;
bool CDemoWorkspaceTest::built = false;
std::wstring CDemoWorkspaceTest::buildError;

}  // namespace

TEST_F(CDemoWorkspaceTest, OpensWithAWaterAndASewerSystem) {
    auto* manager = System::CSystemManager::Instance();
    System::CGisSystem* water = manager->GetActiveSystem();
    ASSERT_NE(water, nullptr);
    EXPECT_EQ(water->GetTopologyType(), 8);
    for (const wchar_t* reference : {L"SCHEME", L"SCHEME_NP", L"00FRAME", L"00DIM", L"01SCHEME", L"01CMMNT", L"02FREE",
                                     L"02MINISCHEME", L"03INFOTABLE", L"03POS", L"04BOM", L"05MANH_S", L"05MANH_T",
                                     L"05TEXT"})
        EXPECT_NE(water->GetLayerByReference(reference), nullptr) << reference;

    const auto* network = Network(water->GetSystemId());
    ASSERT_NE(network, nullptr);
    EXPECT_GE(network->GetNodes().size(), 12u);
    int junctions = 0, valves = 0, hydrants = 0;
    for (const auto& node : network->GetNodes()) {
        const std::wstring kind = node->GetValue(L"kind") ? node->GetValue(L"kind")->AsString() : L"";
        if (kind == L"junction") {
            ++junctions;
            EXPECT_GE(node->GetSections().size(), 2u) << node->GetName();
            EXPECT_LE(node->GetSections().size(), 4u) << node->GetName();
        }
        valves += kind == L"valve";
        hydrants += kind == L"hydrant";
        for (const auto* section : node->GetSections()) EXPECT_NE(section->GetOtherNode(node.get()), nullptr);
    }
    EXPECT_GE(junctions, 4);
    EXPECT_GE(valves, 2);
    EXPECT_GE(hydrants, 1);

    const auto* sewer = Network(2);
    ASSERT_NE(sewer, nullptr);
    for (const auto& manhole : sewer->GetNodes()) EXPECT_NE(manhole->GetValue(L"manhole_depth"), nullptr);
    EXPECT_NE(sewer->GetDataConfiguration().GetDefinition(L"sections.invert_end"), nullptr);
    const Data::CCatalog* catalog = Data::CCatalogManager::Instance()->GetCatalog(L"ASSEMBLYSCHEMES_CATALOG", error);
    ASSERT_NE(catalog, nullptr) << error;
    EXPECT_GT(catalog->GetItemsInTreeOrder().size(), 10u);
    EXPECT_TRUE(std::filesystem::exists(folder->Path() / "demo/install/symbol/IT_A3.dxf"));
}

TEST_F(CDemoWorkspaceTest, NodeDataHasReadableNamesAndTypes) {
    const auto* network = Network(1);
    const auto& configuration = network->GetDataConfiguration();
    const Data::CDataDefinition* pressure = configuration.GetDefinition(L"nodes.pressure");
    ASSERT_NE(pressure, nullptr);
    EXPECT_EQ(pressure->GetName(), L"Operating pressure");
    EXPECT_TRUE(pressure->IsNumeric());
    Data::CDataBox value;
    ASSERT_TRUE(Data::CDataRW::Read(network->GetNodeByName(L"Č-1"), pressure, value));
    EXPECT_EQ(value.AsString(), L"5.4");
    const auto* hydrant = network->GetNodeByName(L"H-1");
    ASSERT_TRUE(Data::CDataRW::Read(hydrant, configuration.GetDefinition(L"nodes.valve_type"), value));
    EXPECT_TRUE(value.IsNull());  // a hydrant has no valve type
}

TEST_F(CDemoWorkspaceTest, TheSqlite3ProgramSeesTheFeatureLayers) {
    const auto store = folder->Path() / "demo" / "workspace.gpkg";
    const std::string layers = Sqlite3(store, "SELECT table_name FROM gpkg_geometry_columns ORDER BY table_name");
    if (layers.empty()) GTEST_SKIP() << "the sqlite3 program is not installed";
    EXPECT_EQ(layers, "network_1_nodes\nnetwork_1_sections\nnetwork_2_nodes\nnetwork_2_sections\n");
    EXPECT_EQ(Sqlite3(store, "PRAGMA integrity_check"), "ok\n");
    EXPECT_EQ(Sqlite3(store, "SELECT count(*) FROM gpkg_contents WHERE data_type = 'features' AND srs_id = 3765"),
              "4\n");
}

TEST(CDemoWorkspace, FurtherStepsRunInTheFolderBeingBuiltAfterTheDemosOwnParts) {
    Testing::TempFolder folder;
    const std::wstring target = (folder.Path() / "demo").wstring();
    std::wstring error;
    const Workspace::CWorkspaceBuilder::Step look = [&target](const std::wstring& built, std::wstring&) {
        return built != target + L"/" && std::filesystem::exists(std::filesystem::path(built) / "install/symbol");
    };
    EXPECT_TRUE(Demo::CDemoWorkspace::Build(target, error, {look})) << error;
    const Workspace::CWorkspaceBuilder::Step fail = [](const std::wstring&, std::wstring& e) {
        e = L"step failed";
        return false;
    };
    EXPECT_FALSE(Demo::CDemoWorkspace::Build(target, error, {fail}));
    EXPECT_EQ(error, L"step failed");
    EXPECT_TRUE(std::filesystem::exists(folder.Path() / "demo/workspace.xml"));  // the first build stays
}
