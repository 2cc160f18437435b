#pragma once
// One row of a node or section layer of the workspace store, as imported and as read back:
// identity, geometry (one point for a node, the vertices for a section), the end nodes of a
// section, and the data values by column (columns without a value are left out).

#include "framework/data/CDataBox.h"
#include "host/geometry/AcGePoint3d.h"

#include <map>
#include <string>
#include <vector>

namespace XimoGis::Topology {

struct CNetworkFeature {
    std::wstring guid;
    std::wstring name;
    std::vector<AcGePoint3d> geometry;
    std::wstring startNode;  // sections: GUID of the starting node
    std::wstring endNode;    // sections: GUID of the ending node
    std::map<std::wstring, Data::CDataBox> values;
};

}  // namespace XimoGis::Topology
