#include "framework/longitudinal/CLSEditor.h"

#include "framework/cad/CXimoCDraw.h"
#include "host/input/acdbAdsName.h"
#include "host/input/acedDragGen.h"
#include "host/input/acedGraphics.h"
#include "host/input/acedSelectionSet.h"

namespace XimoGis::Longitudinal {

namespace {
// The drag callback is a plain function: the grid it previews lives here for the drag's duration.
struct GridPreview {
    int columns = 0;
    int rows = 0;
    double width = 0.0;
    double height = 0.0;
    double gapX = 0.0;
    double gapY = 0.0;
    int anchor = CLSEditor::eGridBottomLeft;
};
GridPreview g_preview;

void drawCell(double x, double y, double w, double h, double z) {
    const ads_point corners[4] = {{x, y, z}, {x + w, y, z}, {x + w, y + h, z}, {x, y + h, z}};
    for (int i = 0; i < 4; ++i) acedGrDraw(corners[i], corners[(i + 1) % 4], 7, 0);
}

int previewGrid(ads_point cursor, ads_matrix matrix) {
    acedRedraw(nullptr, 1);
    const GridPreview& g = g_preview;
    const double direction = g.anchor == CLSEditor::eGridTopLeft ? -1.0 : 1.0;
    for (int row = 0; row < g.rows; ++row) {
        for (int column = 0; column < g.columns; ++column) {
            const double x = cursor[0] + column * (g.width + g.gapX);
            double y = cursor[1] + direction * row * (g.height + g.gapY);
            if (direction < 0) y -= g.height;
            drawCell(x, y, g.width, g.height, cursor[2]);
        }
    }
    // The dragged marker stays where it is: only the preview moves.
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c) matrix[r][c] = r == c ? 1.0 : 0.0;
    return RTNORM;
}
}  // namespace

int CLSEditor::GetLSGridBP(int columns, int rows, double width, double height, double gapX, double gapY,
                           AcGePoint3d* basePoint, int anchor, const std::wstring& prompt) {
    if (!basePoint || columns <= 0 || rows <= 0 || !(width > 0.0) || !(height > 0.0)) return 0;
    g_preview = {columns, rows, width, height, gapX, gapY, anchor};

    // The host drags a selection set: a marker point stands in for the grid.
    CXimoCEntityPtr marker = CXimoCDraw::point(AcGePoint3d::kOrigin);
    if (!marker) return 0;
    const AcDbObjectId markerId = marker.objectId();
    marker.close();
    ads_name entity, set;
    acdbGetAdsName(entity, markerId);
    acedSSAdd(entity, nullptr, set);

    ads_point picked = {0.0, 0.0, 0.0};
    const std::wstring text = prompt.empty() ? L"\nBase point of the grid: " : prompt;
    const int status = acedDragGen(set, text.c_str(), 0, previewGrid, picked);
    acedSSFree(set);
    acedRedraw(nullptr, 1);
    marker.open(markerId, AcDb::kForWrite);
    if (marker) marker->erase();
    marker.close();

    if (status != RTNORM) return 0;
    basePoint->set(picked[0], picked[1], picked[2]);
    return 1;
}

}  // namespace XimoGis::Longitudinal
