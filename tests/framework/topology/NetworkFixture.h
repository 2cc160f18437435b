#pragma once
// A workspace with one water system (id 1) and a small imported network for the topology and
// data tests:
//
//        H1 (hydrant)
//        |  s3 (J1 -> H1)
//   V1 --s1--> J1 --s2--> M1 (manhole chamber, data: depth, diameter, cover level)
//
// V1 lies 100 m west of J1, M1 80 m east, H1 50 m north. J1 has no manhole data and a null
// pressure is left out of V1.

#include "framework/TempFolder.h"
#include "framework/systems/CSystemManager.h"
#include "framework/topology/CNetworkImport.h"

#include <gtest/gtest.h>

#include <string>

namespace XimoGis::Testing {

inline const char* const kNodesJson = R"JSON({
  "type": "FeatureCollection",
  "crs": { "type": "name", "properties": { "name": "urn:ogc:def:crs:EPSG::3765" } },
  "columns": [
    { "column": "kind", "type": "text", "name": "Node kind" },
    { "column": "pressure", "type": "real", "name": "Operating pressure", "unit": "bar" },
    { "column": "valves", "type": "integer", "name": "Number of valves" },
    { "column": "manhole_depth", "type": "real", "name": "Manhole depth", "unit": "m" },
    { "column": "manhole_diameter", "type": "real", "name": "Manhole diameter", "unit": "m" },
    { "column": "cover_level", "type": "real", "name": "Cover level", "unit": "m" }
  ],
  "features": [
    { "type": "Feature", "geometry": { "type": "Point", "coordinates": [1000.0, 2000.0] },
      "properties": { "guid": "{J1}", "name": "J1", "kind": "junction", "pressure": 4.5, "valves": 3 } },
    { "type": "Feature", "geometry": { "type": "Point", "coordinates": [900.0, 2000.0] },
      "properties": { "guid": "{V1}", "name": "V1", "kind": "valve", "pressure": null, "valves": 1 } },
    { "type": "Feature", "geometry": { "type": "Point", "coordinates": [1080.0, 2000.0] },
      "properties": { "guid": "{M1}", "name": "M1", "kind": "chamber", "pressure": 4, "manhole_depth": 1.8,
                      "manhole_diameter": 1.2, "cover_level": 121.4 } },
    { "type": "Feature", "geometry": { "type": "Point", "coordinates": [1000.0, 2050.0] },
      "properties": { "guid": "{H1}", "name": "H1", "kind": "hydrant" } }
  ]
})JSON";

inline const char* const kSectionsJson = R"JSON({
  "type": "FeatureCollection",
  "columns": [
    { "column": "diameter", "type": "integer", "name": "Nominal diameter", "unit": "mm" },
    { "column": "material", "type": "text", "name": "Material" }
  ],
  "features": [
    { "type": "Feature", "geometry": { "type": "LineString", "coordinates": [[900, 2000], [1000, 2000]] },
      "properties": { "guid": "{S1}", "name": "s1", "start_node": "{V1}", "end_node": "{J1}", "diameter": 150,
                      "material": "DI" } },
    { "type": "Feature", "geometry": { "type": "LineString", "coordinates": [[1000, 2000], [1040, 2010], [1080, 2000]] },
      "properties": { "guid": "{S2}", "name": "s2", "start_node": "{J1}", "end_node": "{M1}", "diameter": 150 } },
    { "type": "Feature", "geometry": { "type": "LineString", "coordinates": [[1000, 2000], [1000, 2050]] },
      "properties": { "guid": "{S3}", "name": "s3", "start_node": "{J1}", "end_node": "{H1}", "diameter": 100 } }
  ]
})JSON";

class NetworkFixture : public ::testing::Test {
protected:
    void SetUp() override {
        auto* manager = System::CSystemManager::Instance();
        ASSERT_TRUE(manager->OpenWorkspace(folder.Text(), error, true)) << error;
        system = manager->CreateSystem(1, L"Water", 8, {}, error);
        ASSERT_NE(system, nullptr) << error;
        folder.Write("nodes.geojson", kNodesJson);
        folder.Write("sections.geojson", kSectionsJson);
        ASSERT_TRUE(Topology::CNetworkImport::Import(*system, File("nodes.geojson"), File("sections.geojson"), error))
            << error;
    }
    void TearDown() override { System::CSystemManager::Instance()->CloseWorkspace(); }

    std::wstring File(const char* name) const { return (folder.Path() / name).wstring(); }
    std::filesystem::path Store() const { return folder.Path() / "workspace.gpkg"; }

    TempFolder folder;
    System::CGisSystem* system = nullptr;
    std::wstring error;
};

}  // namespace XimoGis::Testing
