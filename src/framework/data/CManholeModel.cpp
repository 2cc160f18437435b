#include "framework/data/CManholeModel.h"

#include "framework/topology/CNode.h"
#include "framework/topology/CSection.h"

#include <algorithm>

namespace XimoGis::Data {

namespace {

// A positive number from the entity's data; `fallback` when it has none.
double Number(const Topology::CNetworkEntity& entity, const wchar_t* column, double fallback, bool* found = nullptr) {
    const CDataBox* value = entity.GetValue(column);
    double number = 0.0;
    const bool ok = value && value->GetDouble(number);
    if (found) *found = ok;
    return ok ? number : fallback;
}

}  // namespace

bool CManholeModel::HasManhole(const Topology::CNode& node) {
    double ignored = 0.0;
    const CDataBox* depth = node.GetValue(L"manhole_depth");
    const CDataBox* diameter = node.GetValue(L"manhole_diameter");
    return (depth && depth->GetDouble(ignored)) || (diameter && diameter->GetDouble(ignored));
}

bool CManholeModel::Build(const Topology::CNode& node, const CPropertiesEx& properties, CManholeModel& model) {
    if (!HasManhole(node)) return false;
    CManholeModel built;
    built.name = node.GetName();
    built.depth = Number(node, L"manhole_depth", properties.GetDblProperty(L"MSMS_DEPTH", 2.0, 1));
    built.innerDiameter = Number(node, L"manhole_diameter", properties.GetDblProperty(L"MSMS_SHAFT_DIAMETER", 1.0, 1));
    built.coverLevel = Number(node, L"cover_level", 0.0, &built.hasCoverLevel);
    built.wallThickness = properties.GetDblProperty(L"MSMS_WALL_THICKNESS", 0.15, 1);
    built.bottomThickness = properties.GetDblProperty(L"MSMS_BOTTOM_THICKNESS", 0.2, 1);
    built.topThickness = std::min(properties.GetDblProperty(L"MSMS_TOP_THICKNESS", 0.2, 1), built.depth);
    built.coverDiameter = std::min(properties.GetDblProperty(L"MSMS_COVER_DIAMETER", 0.6, 1), built.innerDiameter);
    built.pipeLength = properties.GetDblProperty(L"MSMS_PIPE_LENGTH", 0.6, 1);
    const double defaultDiameter = properties.GetDblProperty(L"MSMS_PIPE_DIAMETER", 0.2, 1);
    const double defaultHeight = properties.GetDblProperty(L"MSMS_PIPE_HEIGHT", 0.0, 1);
    if (!(built.depth > 0.0) || !(built.innerDiameter > 0.0)) return false;

    const double floorLevel = built.coverLevel - built.depth;
    for (const Topology::CSection* section : node.GetSections()) {
        CManholePipe pipe;
        if (!section->GetDirectionAt(&node, pipe.direction)) continue;
        pipe.name = section->GetName();
        pipe.incoming = section->GetEndingNode() == &node;
        pipe.diameter = Number(*section, L"diameter", defaultDiameter * 1000.0) / 1000.0;
        bool hasInvert = false;
        const double invert = Number(*section, pipe.incoming ? L"invert_end" : L"invert_start", 0.0, &hasInvert);
        pipe.invertHeight = hasInvert && built.hasCoverLevel ? invert - floorLevel : defaultHeight;
        // Data that puts a pipe below the floor or above the cover still draws inside the shaft.
        pipe.invertHeight = std::clamp(pipe.invertHeight, 0.0, std::max(0.0, built.depth - pipe.diameter));
        built.pipes.push_back(pipe);
    }
    model = std::move(built);
    return true;
}

}  // namespace XimoGis::Data
