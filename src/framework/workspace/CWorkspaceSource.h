#pragma once
// The sources a workspace is built from (see CWorkspaceBuilder), kept as text in a folder:
//
//   workspace.xml                 copied as it is (see CModuleConfiguration)
//   systems.xml                   the network systems:
//     <systems>
//       <system id="1" name="Water" topologyType="8" active="1">
//         <layer reference="SCHEME" name="VOD_AS_SCHEME" color="7" linetype="Continuous"/> ...
//         <network nodes="network/water_nodes.geojson" sections="network/water_sections.geojson"/>
//       </system> ...
//     </systems>
//   network/*.geojson             node and section layers (see Topology::CGeoJsonLayerReader)
//   systems/<id>/<reference>.xml  sub-documents of the systems, copied as they are
//
// "active" and <network> are optional; file names are relative to the source folder.

#include "framework/systems/CGisSystemLayer.h"

#include <string>
#include <vector>

namespace XimoGis::Workspace {

struct CWorkspaceSystemSource {
    int id = 0;
    std::wstring name;
    int topologyType = 0;
    bool active = false;
    std::vector<System::CGisSystemLayer> layers;
    std::wstring nodesFile;     // absolute; empty without a network
    std::wstring sectionsFile;  // absolute
};

class CWorkspaceSource {
public:
    static const wchar_t* SystemsFileName();  // "systems.xml"

    // Reads the systems of a source folder; a folder without systems.xml has none. False, with
    // `error` naming the file and what is wrong, for a malformed file.
    static bool ReadSystems(const std::wstring& folder, std::vector<CWorkspaceSystemSource>& systems,
                            std::wstring& error);
};

}  // namespace XimoGis::Workspace
