#pragma once
// The network layers of the systems in the workspace store: per system one GeoPackage feature
// table of nodes (points) and one of sections (line strings), which QGIS and ogrinfo open as
// they are.
//
//   network_<systemId>_nodes     (fid, geom POINT, system_id, guid UNIQUE, name, <data columns>)
//   network_<systemId>_sections  (fid, geom LINESTRING, system_id, guid UNIQUE, name, start_node,
//                                 end_node, <data columns>)
//   ximo_data_definitions        (fid, table_name, column_name, display_name, unit), the names
//                                people read for the data columns (an attribute table)
//
// Data columns are INTEGER, REAL or TEXT; a data definition is made from each (see
// Data::CDataDefinition), the column "name" included. Geometries are in HTRS96 / Croatia TM
// (EPSG:3765, metres), registered in gpkg_spatial_ref_sys. Every row carries its system's id,
// so deleting a system's entities empties its layers. Writers run inside the caller's
// transaction.

#include "framework/data/CDataConfiguration.h"
#include "framework/data/CDataDefinition.h"
#include "framework/topology/CNetworkFeature.h"

#include <string>
#include <vector>

namespace XimoGis::Workspace {
class CWorkspaceStore;
}

namespace XimoGis::Topology {

class CNetworkLayers {
public:
    static constexpr int kSrsId = 3765;
    static const char* const kDefinitionsTable;

    static std::string GetTableName(int systemId, Data::enmDataTarget target);
    // Columns every layer has that are not data: fid, geom, system_id, guid, start_node, end_node.
    static bool IsReservedColumn(const std::wstring& column);

    // Replaces the layer (an old table, its registration and its display names go) with an empty
    // one holding `columns` (data columns only; "name" is always there). False with `error` for a
    // bad or repeated column name.
    static bool CreateLayer(Workspace::CWorkspaceStore& store, int systemId, Data::enmDataTarget target,
                            const std::wstring& identifier, const std::vector<Data::CDataDefinition>& columns,
                            std::wstring& error);
    // Appends features to a layer made by CreateLayer, with the values of `columns`, and widens the
    // layer's extent in gpkg_contents.
    static bool InsertFeatures(Workspace::CWorkspaceStore& store, int systemId, Data::enmDataTarget target,
                               const std::vector<Data::CDataDefinition>& columns,
                               const std::vector<CNetworkFeature>& features, std::wstring& error);

    static bool HasLayer(const Workspace::CWorkspaceStore& store, int systemId, Data::enmDataTarget target);
    // The layer's definitions added to `configuration`; a system without the layer adds none.
    static bool LoadDefinitions(const Workspace::CWorkspaceStore& store, int systemId, Data::enmDataTarget target,
                                Data::CDataConfiguration& configuration, std::wstring& error);
    // The layer's rows of the system, in fid order, with the values of the configuration's columns.
    static bool LoadFeatures(const Workspace::CWorkspaceStore& store, int systemId, Data::enmDataTarget target,
                             const Data::CDataConfiguration& configuration, std::vector<CNetworkFeature>& features,
                             std::wstring& error);
};

}  // namespace XimoGis::Topology
