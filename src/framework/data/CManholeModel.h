#pragma once
// A node's manhole as the views draw it, in metres, from the node's data and the shape properties
// (see ManholeScheme::CManholeShapeProperties) for what the data leaves out.
//
// Node data read: "manhole_depth" (cover to floor), "manhole_diameter" (inside of the shaft) and
// "cover_level"; a node has a manhole when it has a depth or a diameter. Section data read:
// "diameter" in millimetres and the invert levels "invert_start" and "invert_end" (the pipe's
// bottom at its starting and ending node); an invert level counts only with the node's cover level.

#include "framework/data/CPropertiesEx.h"
#include "host/geometry/AcGeVector3d.h"

#include <string>
#include <vector>

namespace XimoGis::Topology {
class CNode;
}

namespace XimoGis::Data {

struct CManholePipe {
    std::wstring name;        // the section's name
    AcGeVector3d direction;   // unit, in plan, away from the manhole
    double diameter = 0.0;
    double invertHeight = 0.0;  // the pipe's bottom above the floor
    bool incoming = false;      // the section ends at the node
};

struct CManholeModel {
    std::wstring name;
    double innerDiameter = 0.0;
    double depth = 0.0;
    double wallThickness = 0.0;
    double bottomThickness = 0.0;
    double topThickness = 0.0;
    double coverDiameter = 0.0;
    double pipeLength = 0.0;
    bool hasCoverLevel = false;
    double coverLevel = 0.0;
    std::vector<CManholePipe> pipes;  // incoming sections first, then outgoing ones

    static bool HasManhole(const Topology::CNode& node);
    // False, leaving `model` alone, when the node has no manhole.
    static bool Build(const Topology::CNode& node, const CPropertiesEx& properties, CManholeModel& model);
};

}  // namespace XimoGis::Data
