#pragma once
// The top view of a manhole, in plan with north up: the shaft's outer and inner face, the cover
// opening, centre lines, every pipe from the shaft's inner face out to its stub end with an arrow
// in the direction of flow (into the manhole for sections ending at it), pipe labels and the
// title. The base point is the shaft's axis.

#include "framework/data/CManholeModel.h"

namespace XimoGis::Data {

class CManholeSketch;

class CManholeTopView {
public:
    static void Draw(const CManholeModel& model, const CPropertiesEx& properties, CManholeSketch& sketch);
};

}  // namespace XimoGis::Data
