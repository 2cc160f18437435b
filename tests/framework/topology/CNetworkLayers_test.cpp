#include "framework/topology/CNetworkLayers.h"

#include "framework/topology/NetworkFixture.h"
#include "framework/workspace/CTransaction.h"
#include "framework/workspace/CWorkspaceStore.h"
#include "framework/workspace/StoreQuery.h"

using XimoGis::Data::CDataBox;
using XimoGis::Data::CDataConfiguration;
using XimoGis::Data::CDataDefinition;
using XimoGis::Data::enmDataTarget;
using XimoGis::Testing::QueryInt;
using XimoGis::Topology::CNetworkFeature;
using XimoGis::Topology::CNetworkLayers;
using XimoGis::Workspace::CTransaction;
using XimoGis::Workspace::CWorkspaceStore;

using CNetworkLayersTest = XimoGis::Testing::NetworkFixture;

TEST_F(CNetworkLayersTest, LayersAreGeoPackageFeatureTablesThatOtherReadersFind) {
    const auto store = Store();
    EXPECT_EQ(QueryInt(store, "SELECT count(*) FROM gpkg_contents WHERE data_type = 'features' AND srs_id = 3765 AND "
                              "table_name IN ('network_1_nodes', 'network_1_sections')"),
              2);
    EXPECT_EQ(QueryInt(store, "SELECT count(*) FROM gpkg_geometry_columns WHERE column_name = 'geom' AND "
                              "((table_name = 'network_1_nodes' AND geometry_type_name = 'POINT') OR "
                              "(table_name = 'network_1_sections' AND geometry_type_name = 'LINESTRING'))"),
              2);
    EXPECT_EQ(QueryInt(store, "SELECT count(*) FROM gpkg_spatial_ref_sys WHERE srs_id = 3765 AND organization = 'EPSG' "
                              "AND definition LIKE 'PROJCS[\"HTRS96 / Croatia TM\"%'"),
              1);
    // The extent covers every node; blobs start with the GeoPackage magic.
    EXPECT_EQ(QueryInt(store, "SELECT min_x = 900 AND max_x = 1080 AND min_y = 2000 AND max_y = 2050 FROM gpkg_contents "
                              "WHERE table_name = 'network_1_nodes'"),
              1);
    EXPECT_EQ(QueryInt(store, "SELECT count(*) FROM network_1_nodes WHERE substr(geom, 1, 2) = CAST('GP' AS BLOB)"), 4);
    EXPECT_EQ(QueryInt(store, "SELECT count(*) FROM network_1_sections WHERE system_id = 1"), 3);
    EXPECT_EQ(QueryInt(store, "SELECT count(*) FROM ximo_data_definitions WHERE table_name = 'network_1_nodes'"), 7);
    EXPECT_EQ(QueryInt(store, "SELECT count(*) FROM gpkg_contents WHERE table_name = 'ximo_data_definitions' AND "
                              "data_type = 'attributes'"),
              1);
}

TEST_F(CNetworkLayersTest, DefinitionsComeFromTheColumnsWithTheirNamesAndTypes) {
    CWorkspaceStore store;
    ASSERT_TRUE(store.Open(Store().wstring(), CWorkspaceStore::omReadOnly, error)) << error;
    CDataConfiguration configuration;
    ASSERT_TRUE(CNetworkLayers::LoadDefinitions(store, 1, enmDataTarget::Node, configuration, error)) << error;
    ASSERT_TRUE(CNetworkLayers::LoadDefinitions(store, 1, enmDataTarget::Section, configuration, error)) << error;
    EXPECT_EQ(configuration.GetCount(), 7u + 3u);
    const CDataDefinition* pressure = configuration.GetDefinition(L"nodes.pressure");
    ASSERT_NE(pressure, nullptr);
    EXPECT_EQ(pressure->GetName(), L"Operating pressure");
    EXPECT_EQ(pressure->GetUnit(), L"bar");
    EXPECT_TRUE(pressure->IsNumeric());
    EXPECT_EQ(configuration.GetDefinition(L"nodes.valves")->GetValueType(), CDataBox::Type::Integer);
    EXPECT_FALSE(configuration.GetDefinition(L"sections.material")->IsNumeric());
    EXPECT_EQ(configuration.GetDefinition(L"sections.name")->GetName(), L"Name");
    EXPECT_EQ(configuration.GetDefinition(L"nodes.guid"), nullptr);
    EXPECT_EQ(configuration.GetDefinitions(enmDataTarget::Section).front()->GetColumn(), L"name");

    std::vector<CNetworkFeature> sections;
    ASSERT_TRUE(CNetworkLayers::LoadFeatures(store, 1, enmDataTarget::Section, configuration, sections, error));
    ASSERT_EQ(sections.size(), 3u);
    EXPECT_EQ(sections[1].guid, L"{S2}");
    EXPECT_EQ(sections[1].name, L"s2");
    EXPECT_EQ(sections[1].geometry.size(), 3u);
    EXPECT_EQ(sections[1].startNode, L"{J1}");
    EXPECT_EQ(sections[1].values.at(L"diameter"), CDataBox(150));
    EXPECT_EQ(sections[1].values.count(L"material"), 0u);  // null values are left out
}

TEST_F(CNetworkLayersTest, BadColumnsAreRefusedAndRecreatingReplacesTheLayer) {
    CWorkspaceStore store;
    ASSERT_TRUE(store.Open(Store().wstring(), CWorkspaceStore::omReadWrite, error)) << error;
    CTransaction transaction(store);
    for (const wchar_t* bad : {L"guid", L"Name", L"2nd", L"depth m"}) {
        const std::vector<CDataDefinition> columns = {{enmDataTarget::Node, bad, CDataBox::Type::Double}};
        EXPECT_FALSE(CNetworkLayers::CreateLayer(store, 1, enmDataTarget::Node, L"x", columns, error)) << bad;
        EXPECT_NE(error.find(bad), std::wstring::npos) << error;
    }
    const std::vector<CDataDefinition> twice = {{enmDataTarget::Node, L"depth", CDataBox::Type::Double},
                                                {enmDataTarget::Node, L"DEPTH", CDataBox::Type::Integer}};
    EXPECT_FALSE(CNetworkLayers::CreateLayer(store, 1, enmDataTarget::Node, L"x", twice, error));
    EXPECT_NE(error.find(L"given twice"), std::wstring::npos) << error;

    ASSERT_TRUE(CNetworkLayers::CreateLayer(store, 1, enmDataTarget::Node, L"Water: nodes", {twice[0]}, error)) << error;
    ASSERT_TRUE(transaction.Commit(error)) << error;
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM network_1_nodes"), 0);
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM ximo_data_definitions WHERE table_name = 'network_1_nodes'"), 2);
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM gpkg_contents WHERE table_name = 'network_1_nodes'"), 1);
}

TEST_F(CNetworkLayersTest, DeletingTheSystemsEntitiesEmptiesItsLayers) {
    ASSERT_TRUE(XimoGis::System::CSystemManager::Instance()->DeleteSystemEntities(system, error)) << error;
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM network_1_nodes"), 0);
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM network_1_sections"), 0);
    EXPECT_EQ(QueryInt(Store(), "SELECT count(*) FROM ximo_data_definitions"), 7 + 3);  // not entities
}
