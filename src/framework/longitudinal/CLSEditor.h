#pragma once
// Interactive helpers for laying out sheets.

#include <string>

#include "host/geometry/AcGePoint3d.h"

namespace XimoGis::Longitudinal {

class CLSEditor {
public:
    // Where the base point sits on the grid.
    enum enmGridAnchor { eGridTopLeft = 1, eGridBottomLeft = 2 };

    // Asks for the base point of a grid of columns x rows cells of width x height with the given
    // gaps, showing the grid's outline at the cursor while the user drags. With eGridBottomLeft
    // the point is the lower-left corner and rows grow upwards; with eGridTopLeft it is the
    // upper-left corner and rows grow downwards. Returns 1 with basePoint set on a pick, 0 when
    // the user cancels or the grid is empty.
    static int GetLSGridBP(int columns, int rows, double width, double height, double gapX, double gapY,
                           AcGePoint3d* basePoint, int anchor = eGridBottomLeft, const std::wstring& prompt = L"");
};

}  // namespace XimoGis::Longitudinal
