#pragma once
// The side view of a manhole: a vertical section through the shaft along its outlet (the first
// section leaving the node; without one, the first entering section, coming from the left).
// The outlet runs to the right; the half of the shaft nearer the viewer is cut away.
//
// Drawn: the walls (broken where pipes in the section plane pass through them), bottom and top
// slabs, the cover in its opening, the ground line beside the shaft, the shaft's axis, every
// pipe (pipes in the section plane as stubs through the wall, others as their openings in the
// shaft: seen on the far wall, dashed on the near one), labels of the pipes, the cover and floor
// levels, and the title. The base point is the shaft's axis at the cover.

#include "framework/data/CManholeModel.h"

namespace XimoGis::Data {

class CManholeSketch;

class CManholeFrontView {
public:
    static void Draw(const CManholeModel& model, const CPropertiesEx& properties, CManholeSketch& sketch);
};

}  // namespace XimoGis::Data
