#pragma once
// Fills a system's node and section layers in the workspace store from their GeoJSON sources
// (see CGeoJsonLayerReader), replacing what the layers held.

#include <string>

namespace XimoGis::System {
class CGisSystem;
}

namespace XimoGis::Topology {

class CNetworkImport {
public:
    // How far the end of a section may lie from its node, in metres.
    static constexpr double kEndTolerance = 0.01;

    // Reads both files, checks that every section starts and ends at a node of the nodes file
    // (its first and last vertex within kEndTolerance of that node), and writes both layers in one
    // transaction. On any fault nothing is written and `error` names the file and the fault. The
    // system's network is read anew on its next use.
    static bool Import(const System::CGisSystem& system, const std::wstring& nodesFile,
                       const std::wstring& sectionsFile, std::wstring& error);
};

}  // namespace XimoGis::Topology
