#pragma once
// The property set of the manhole views: the shape of a manhole where the node's data says
// nothing, the colours and text of the drawing, its scale and unit. Lengths of the manhole are in
// metres; the text height is in drawing units.
//
//   "MSMS_SHAFT_DIAMETER"  inner diameter of the shaft when the node has no "manhole_diameter" (1.0)
//   "MSMS_DEPTH"           cover to floor when the node has no "manhole_depth" (2.0)
//   "MSMS_WALL_THICKNESS" (0.15)  "MSMS_BOTTOM_THICKNESS" (0.2)  "MSMS_TOP_THICKNESS" (0.2)
//   "MSMS_COVER_DIAMETER"  clear opening of the cover (0.6)
//   "MSMS_PIPE_LENGTH"     length of the pipe stubs drawn outside the wall (0.6)
//   "MSMS_PIPE_DIAMETER"   pipe diameter when a section has no "diameter" (0.2)
//   "MSMS_PIPE_HEIGHT"     pipe invert above the floor when a section has no invert level (0.0)
//   "MSMS_WALL_COLOR" (7)  "MSMS_PIPE_COLOR" (5)  "MSMS_COVER_COLOR" (1)
//   "MSMS_TEXT_COLOR" (7)  "MSMS_TEXT_HEIGHT" (2.5)  "MSMS_TEXT_STYLE" ("Standard")
//   "MSMS_SCALE"           drawing units per unit of "MSMS_UNIT" of the manhole (0.1: 1:10)
//   "MSMS_UNIT"            list: millimetres (0), centimetres (1), metres (2); default millimetres

#include "framework/data/CPropertiesEx.h"

#include <boost/shared_ptr.hpp>

namespace XimoGis::ManholeScheme {

class CManholeShapeProperties {
public:
    // The set of the side view (front) or of the top view; the top view has no slab thicknesses
    // and no pipe height, which only a section through the shaft shows.
    static boost::shared_ptr<Data::CPropertiesEx> Create(bool frontView);
    // Drawing units per metre of the manhole: the unit's size in metres times the scale.
    static double GetDrawingFactor(const Data::CPropertiesEx& properties);
};

}  // namespace XimoGis::ManholeScheme
