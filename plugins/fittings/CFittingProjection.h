#pragma once
// Parallel projection of a fitting model (CFittingModel) onto the plane of a view direction.
//
// Each view looks at the model's frame from one side; the view's right and up directions become
// the drawing's X and Y:
//   top    from +Z: right +X, up +Y      bottom from -Z: right -X, up +Y
//   front  from -Y: right +X, up +Z      back   from +Y: right -X, up +Z
//   left   from -X: right -Y, up +Z      right  from +X: right +Y, up +Z
// Tubes and flanges are shown by their outlines whatever their position; a bend only when its
// plane faces the view (drawn as arcs) or is seen edge-on (a straight band). A flange face seen
// edge-on is a flange face line of the sketch; seen obliquely it is an ellipse, face-on a circle.

#include "fittings/CFittingModel.h"
#include "fittings/CFittingSketch.h"

#include "module/catalog/enmViewDirection.h"

namespace XimoGis::AssemblySchemes::Fittings {

class CFittingProjection {
public:
    struct Frame {
        AcGeVector3d right;
        AcGeVector3d up;
        AcGeVector3d forward;  // the direction of looking
    };

    // The frame of a view; the top view's for a value outside the six.
    static Frame GetFrame(enmViewDirection view);
    // Adds the view of the model to the sketch. False when a bend is seen neither face-on nor
    // edge-on: the view is then incomplete.
    static bool Project(const CFittingModel& model, enmViewDirection view, CFittingSketch& sketch);
};

}  // namespace XimoGis::AssemblySchemes::Fittings
