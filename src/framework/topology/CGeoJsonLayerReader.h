#pragma once
// Reads the source of one network layer, a GeoJSON feature collection, into columns and
// features. QGIS and GDAL open these files too.
//
//   { "type": "FeatureCollection",
//     "crs": { "type": "name", "properties": { "name": "urn:ogc:def:crs:EPSG::3765" } },
//     "columns": [ { "column": "pressure", "type": "real", "name": "Operating pressure", "unit": "bar" } ],
//     "features": [ { "type": "Feature",
//                     "geometry": { "type": "Point", "coordinates": [ 458120.0, 5073200.0 ] },
//                     "properties": { "guid": "{...}", "name": "J1", "pressure": 4.5 } } ] }
//
// "columns" declares the data columns ("type": "integer", "real" or "text"; "name" and "unit"
// optional). Node features are points; section features are line strings and also carry
// "start_node" and "end_node", the GUIDs of their end nodes. Every feature needs a "guid";
// properties not declared as columns, values that do not fit their column's type and a "crs"
// other than EPSG:3765 are errors. A missing or null property is a null value.

#include "framework/data/CDataDefinition.h"
#include "framework/topology/CNetworkFeature.h"

#include <string>
#include <vector>

namespace XimoGis::Topology {

class CGeoJsonLayerReader {
public:
    // False, with `error` naming the file and the feature, for anything wrong.
    static bool Read(const std::wstring& file, Data::enmDataTarget target, std::vector<Data::CDataDefinition>& columns,
                     std::vector<CNetworkFeature>& features, std::wstring& error);
    // As Read, from text already loaded; `source` names it in errors.
    static bool Parse(const std::string& json, const std::wstring& source, Data::enmDataTarget target,
                      std::vector<Data::CDataDefinition>& columns, std::vector<CNetworkFeature>& features,
                      std::wstring& error);
};

}  // namespace XimoGis::Topology
