#include "framework/topology/CGeoJsonLayerReader.h"

#include <gtest/gtest.h>

using XimoGis::Data::CDataBox;
using XimoGis::Data::CDataDefinition;
using XimoGis::Data::enmDataTarget;
using XimoGis::Topology::CGeoJsonLayerReader;
using XimoGis::Topology::CNetworkFeature;

namespace {

std::string Collection(const std::string& features, const std::string& extra = "") {
    return R"({"type": "FeatureCollection", "columns": [{"column": "depth", "type": "real", "unit": "m"},
               {"column": "count", "type": "integer"}, {"column": "note", "type": "text", "name": "Note"}])" +
           extra + R"(, "features": [)" + features + "]}";
}

std::string Point(const std::string& properties) {
    return R"({"type": "Feature", "geometry": {"type": "Point", "coordinates": [1.5, 2.5]}, "properties": {)" +
           properties + "}}";
}

}  // namespace

TEST(CGeoJsonLayerReader, ReadsColumnsAndTypedValues) {
    std::vector<CDataDefinition> columns;
    std::vector<CNetworkFeature> features;
    std::wstring error;
    const std::string json = Collection(Point(R"("guid": "{A}", "name": "A", "depth": 2, "count": 3.0, "note": 12)") +
                                        "," + Point(R"("guid": "{B}", "depth": null)"));
    ASSERT_TRUE(CGeoJsonLayerReader::Parse(json, L"n.geojson", enmDataTarget::Node, columns, features, error)) << error;
    ASSERT_EQ(columns.size(), 3u);
    EXPECT_EQ(columns[0].GetId(), L"nodes.depth");
    EXPECT_EQ(columns[0].GetUnit(), L"m");
    EXPECT_EQ(columns[2].GetName(), L"Note");
    ASSERT_EQ(features.size(), 2u);
    EXPECT_EQ(features[0].values.at(L"depth"), CDataBox(2.0));  // an integer read into a real column
    EXPECT_EQ(features[0].values.at(L"count"), CDataBox(3));
    EXPECT_EQ(features[0].values.at(L"note"), CDataBox(L"12"));
    EXPECT_EQ(features[0].geometry.front().y, 2.5);
    EXPECT_TRUE(features[1].values.empty());
    EXPECT_TRUE(features[1].name.empty());
}

TEST(CGeoJsonLayerReader, FaultsNameTheFileAndTheFeature) {
    const std::pair<std::string, std::wstring> cases[] = {
        {"{", L"not JSON"},
        {R"({"type": "Feature"})", L"not a GeoJSON feature collection"},
        {Collection(Point(R"("guid": "{A}", "colour": 1)")), L"feature 1 is wrong: property \"colour\" is not a declared"},
        {Collection(Point(R"("guid": "{A}")") + "," + Point(R"("guid": "{A}")")), L"feature 2 repeats the guid {A}"},
        {Collection(Point(R"("guid": "{A}", "count": 2.5)")), L"\"count\" does not fit its column's type"},
        {Collection(Point(R"("name": "A")")), L"it has no \"guid\""},
        {Collection(Point(R"("guid": "{A}")"), R"(, "crs": {"type": "name", "properties": {"name": "EPSG:4326"}})"),
         L"its \"crs\" is not EPSG:3765"},
    };
    for (const auto& [json, expected] : cases) {
        std::vector<CDataDefinition> columns;
        std::vector<CNetworkFeature> features;
        std::wstring error;
        EXPECT_FALSE(CGeoJsonLayerReader::Parse(json, L"in.geojson", enmDataTarget::Node, columns, features, error));
        EXPECT_NE(error.find(L"\"in.geojson\""), std::wstring::npos) << error;
        EXPECT_NE(error.find(expected), std::wstring::npos) << error;
        EXPECT_TRUE(features.empty());
    }
}

TEST(CGeoJsonLayerReader, SectionsNeedLinesAndBothEndNodes) {
    std::vector<CDataDefinition> columns;
    std::vector<CNetworkFeature> features;
    std::wstring error;
    EXPECT_FALSE(CGeoJsonLayerReader::Parse(Collection(Point(R"("guid": "{A}")")), L"s", enmDataTarget::Section,
                                            columns, features, error));
    EXPECT_NE(error.find(L"not a LineString"), std::wstring::npos) << error;
    const std::string line = R"({"type": "Feature", "geometry": {"type": "LineString", "coordinates": [[0, 0], [5, 0]]},
                                 "properties": {"guid": "{S}", "start_node": "{A}"}})";
    EXPECT_FALSE(CGeoJsonLayerReader::Parse(Collection(line), L"s", enmDataTarget::Section, columns, features, error));
    EXPECT_NE(error.find(L"lacks \"start_node\" or \"end_node\""), std::wstring::npos) << error;
    EXPECT_FALSE(CGeoJsonLayerReader::Read(L"/nonexistent/s.geojson", enmDataTarget::Section, columns, features, error));
    EXPECT_NE(error.find(L"\"/nonexistent/s.geojson\": the file cannot be read"), std::wstring::npos) << error;
}
