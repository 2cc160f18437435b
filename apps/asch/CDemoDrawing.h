#pragma once
// A demo drawing with every entity kind the host knows: layers with colours and linetypes, a text
// style, lines, polylines with arcs and widths, points, circles, arcs, texts in several
// alignments, multi-line text, and a valve block with attributes and a nested flange block,
// inserted plain, rotated, scaled and mirrored. It shows that the host layer draws what the
// engine will draw.

#include "host/database/AcDbDatabase.h"

namespace XimoGis::Asch {

class CDemoDrawing {
public:
    // The name of the application whose extended data the demo's references carry.
    static constexpr const wchar_t* kApplication = L"XIMO_DEMO";

    // Fills the model space of a new database; false when the host refuses a step.
    static bool Build(AcDbDatabase& db);
};

}  // namespace XimoGis::Asch
