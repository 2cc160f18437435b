#include "framework/topology/CTopologyStorage.h"

#include "framework/topology/NetworkFixture.h"
#include "framework/workspace/CWorkspaceStore.h"

#include <geos/geom/CoordinateSequence.h>
#include <geos/geom/Geometry.h>

#include <cmath>

using XimoGis::Topology::CNetworkFeature;
using XimoGis::Topology::CNode;
using XimoGis::Topology::CSection;
using XimoGis::Topology::CTopologyStorage;
using XimoGis::Workspace::CWorkspaceStore;

using CTopologyStorageTest = XimoGis::Testing::NetworkFixture;

TEST_F(CTopologyStorageTest, NodesKnowTheirSectionsAndSectionsTheirNodes) {
    CWorkspaceStore store;
    ASSERT_TRUE(store.Open(Store().wstring(), CWorkspaceStore::omReadOnly, error)) << error;
    CTopologyStorage topology(1);
    ASSERT_TRUE(topology.Load(store, error)) << error;
    ASSERT_EQ(topology.GetNodes().size(), 4u);
    ASSERT_EQ(topology.GetSections().size(), 3u);

    CNode* j1 = topology.GetNodeByGuid(L"{J1}");
    ASSERT_NE(j1, nullptr);
    EXPECT_EQ(j1->GetName(), L"J1");
    EXPECT_EQ(j1->GetPosition().x, 1000.0);
    EXPECT_EQ(j1->GetEntityType(), XimoGis::etNode);
    ASSERT_EQ(j1->GetSectionsIn().size(), 1u);
    EXPECT_EQ(j1->GetSectionsIn()[0]->GetName(), L"s1");
    ASSERT_EQ(j1->GetSectionsOut().size(), 2u);
    EXPECT_EQ(j1->GetSectionsOut()[0]->GetName(), L"s2");
    EXPECT_EQ(j1->GetSections().size(), 3u);

    const CSection* s1 = topology.GetSectionByGuid(L"{S1}");
    EXPECT_EQ(s1->GetStartingNode(), topology.GetNodeByName(L"V1"));
    EXPECT_EQ(s1->GetEndingNode(), j1);
    EXPECT_EQ(s1->GetOtherNode(j1)->GetName(), L"V1");
    EXPECT_EQ(s1->GetOtherNode(topology.GetNodeByName(L"H1")), nullptr);
    EXPECT_EQ(topology.GetNodeByGuid(L"{j1}"), nullptr);  // case-sensitive
    EXPECT_EQ(topology.GetDataConfiguration().GetCount(), 10u);
}

TEST_F(CTopologyStorageTest, DirectionsLengthsAndGeometries) {
    CTopologyStorage topology(1);
    CWorkspaceStore store;
    ASSERT_TRUE(store.Open(Store().wstring(), CWorkspaceStore::omReadOnly, error)) << error;
    ASSERT_TRUE(topology.Load(store, error)) << error;
    const CNode* j1 = topology.GetNodeByName(L"J1");
    const CNode* m1 = topology.GetNodeByName(L"M1");
    CSection* s2 = topology.GetSectionByGuid(L"{S2}");
    AcGeVector3d direction;
    ASSERT_TRUE(s2->GetDirectionAt(j1, direction));  // along the first segment, (40, 10)
    EXPECT_NEAR(direction.x, 40 / std::hypot(40, 10), 1e-12);
    EXPECT_NEAR(direction.y, 10 / std::hypot(40, 10), 1e-12);
    ASSERT_TRUE(s2->GetDirectionAt(m1, direction));  // back along the last segment, (-40, 10)
    EXPECT_NEAR(direction.x, -40 / std::hypot(40, 10), 1e-12);
    EXPECT_FALSE(s2->GetDirectionAt(topology.GetNodeByName(L"H1"), direction));
    EXPECT_NEAR(s2->GetLength(), 2 * std::hypot(40, 10), 1e-9);

    const auto line = s2->GetGeosGeometry();
    ASSERT_EQ(line->getNumPoints(), 3u);
    EXPECT_EQ(line->getCoordinates()->getAt(1).y, 2010.0);
    EXPECT_EQ(topology.GetNodeByName(L"H1")->GetGeosGeometry()->getGeometryTypeId(), geos::geom::GEOS_POINT);
    EXPECT_EQ(s2->GetXML(), L"<section guid=\"{S2}\" name=\"s2\" system=\"1\" start=\"{J1}\" end=\"{M1}\"/>");
}

TEST(CTopologyStorage, SectionsWithoutTheirNodesKeepNullEnds) {
    CTopologyStorage topology(7);
    CNetworkFeature node{L"{A}", L"A", {AcGePoint3d(0, 0, 0)}, L"", L"", {}};
    CNetworkFeature section{L"{S}", L"S", {AcGePoint3d(0, 0, 0), AcGePoint3d(5, 0, 0)}, L"{A}", L"{Z}", {}};
    topology.Build({node, node}, {section});
    EXPECT_EQ(topology.GetNodes().size(), 1u);  // a repeated GUID is kept once
    const CSection* s = topology.GetSectionByGuid(L"{S}");
    EXPECT_EQ(s->GetStartingNode(), topology.GetNodeByGuid(L"{A}"));
    EXPECT_EQ(s->GetEndingNode(), nullptr);
    EXPECT_EQ(s->GetEndNodeGuid(), L"{Z}");
    EXPECT_EQ(s->GetSystemId(), 7);
}
