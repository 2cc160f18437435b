#include "framework/data/CManholeModel.h"

#include "framework/manholescheme/CManholeShapeProperties.h"
#include "framework/topology/CTopologyStorage.h"

#include <gtest/gtest.h>

#include <memory>

using XimoGis::Data::CDataBox;
using XimoGis::Data::CManholeModel;
using XimoGis::ManholeScheme::CManholeShapeProperties;
using XimoGis::Topology::CNetworkFeature;
using XimoGis::Topology::CTopologyStorage;

namespace {

// A manhole M at the origin with an inlet from the west and an outlet to the north.
std::unique_ptr<CTopologyStorage> Network(std::map<std::wstring, CDataBox> manhole, std::map<std::wstring, CDataBox> outlet) {
    auto topology = std::make_unique<CTopologyStorage>(1);
    topology->Build({{L"{M}", L"M", {AcGePoint3d(0, 0, 0)}, L"", L"", std::move(manhole)},
                    {L"{W}", L"W", {AcGePoint3d(-10, 0, 0)}, L"", L"", {}},
                    {L"{N}", L"N", {AcGePoint3d(0, 10, 0)}, L"", L"", {}}},
                   {{L"{IN}", L"in", {AcGePoint3d(-10, 0, 0), AcGePoint3d(0, 0, 0)}, L"{W}", L"{M}",
                     {{L"diameter", CDataBox(300)}, {L"invert_end", CDataBox(98.3)}}},
                    {L"{OUT}", L"out", {AcGePoint3d(0, 0, 0), AcGePoint3d(0, 10, 0)}, L"{M}", L"{N}", std::move(outlet)}});
    return topology;
}

}  // namespace

TEST(CManholeModel, NodeDataWithThePropertiesForWhatItLacks) {
    const auto properties = CManholeShapeProperties::Create(true);
    const auto topology =
        Network({{L"manhole_depth", CDataBox(2.0)}, {L"cover_level", CDataBox(100.0)}}, {{L"invert_start", CDataBox(97.0)}});
    CManholeModel model;
    ASSERT_TRUE(CManholeModel::Build(*topology->GetNodeByName(L"M"), *properties, model));
    EXPECT_EQ(model.depth, 2.0);
    EXPECT_EQ(model.innerDiameter, 1.0);  // "MSMS_SHAFT_DIAMETER"
    ASSERT_EQ(model.pipes.size(), 2u);
    EXPECT_TRUE(model.pipes[0].incoming);
    EXPECT_NEAR(model.pipes[0].direction.x, -1.0, 1e-12);  // away from the manhole, to the west
    EXPECT_NEAR(model.pipes[0].invertHeight, 0.3, 1e-9);  // 98.3 over a floor at 98.0
    EXPECT_EQ(model.pipes[0].diameter, 0.3);
    EXPECT_FALSE(model.pipes[1].incoming);
    EXPECT_EQ(model.pipes[1].diameter, 0.2);     // "MSMS_PIPE_DIAMETER"
    EXPECT_EQ(model.pipes[1].invertHeight, 0.0);  // below the floor: kept at the floor
}

TEST(CManholeModel, InvertsNeedTheCoverLevelAndANodeNeedsDepthOrDiameter) {
    const auto properties = CManholeShapeProperties::Create(true);
    properties->GetProperty(L"MSMS_PIPE_HEIGHT")->SetValue(0.4);
    const auto topology = Network({{L"manhole_diameter", CDataBox(1.5)}}, {});
    CManholeModel model;
    ASSERT_TRUE(CManholeModel::Build(*topology->GetNodeByName(L"M"), *properties, model));
    EXPECT_EQ(model.depth, 2.0);  // "MSMS_DEPTH"
    EXPECT_FALSE(model.hasCoverLevel);
    EXPECT_EQ(model.pipes[0].invertHeight, 0.4);
    EXPECT_FALSE(CManholeModel::HasManhole(*topology->GetNodeByName(L"W")));
    EXPECT_FALSE(CManholeModel::Build(*topology->GetNodeByName(L"W"), *properties, model));
    EXPECT_EQ(model.innerDiameter, 1.5);  // left as it was
}
