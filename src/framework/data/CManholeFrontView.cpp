#include "framework/data/CManholeFrontView.h"

#include "framework/data/CManholeSketch.h"
#include "framework/data/CManholeViewText.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>
#include <vector>

namespace XimoGis::Data {

namespace {

// Pipes closer than this to the section plane pass through the cut walls.
const double kInPlaneSine = std::sin(20.0 * 3.14159265358979323846 / 180.0);

// The outlet's direction in plan: the view's axis to the right.
AcGeVector3d Axis(const CManholeModel& model) {
    for (const CManholePipe& pipe : model.pipes)
        if (!pipe.incoming) return pipe.direction;
    for (const CManholePipe& pipe : model.pipes)
        if (pipe.incoming) return -pipe.direction;
    return AcGeVector3d(1.0, 0.0, 0.0);
}

// The wall from `bottom` to `top` between u1 and u2, left open where the openings are.
void DrawWall(CManholeSketch& sketch, double u1, double u2, double bottom, double top,
              std::vector<std::pair<double, double>> openings, int colour) {
    std::sort(openings.begin(), openings.end());
    double from = bottom;
    for (const auto& [low, high] : openings) {
        if (low > from) sketch.Rectangle(u1, from, u2, std::min(low, top), colour);
        from = std::max(from, high);
        if (from >= top) return;
    }
    sketch.Rectangle(u1, from, u2, top, colour);
}

}  // namespace

void CManholeFrontView::Draw(const CManholeModel& model, const CPropertiesEx& properties, CManholeSketch& sketch) {
    const int wallColour = properties.GetIntProperty(L"MSMS_WALL_COLOR", 7, 1);
    const int pipeColour = properties.GetIntProperty(L"MSMS_PIPE_COLOR", 5, 1);
    const int coverColour = properties.GetIntProperty(L"MSMS_COVER_COLOR", 1, 1);
    const CManholeViewText text = CManholeViewText::FromProperties(properties);
    const double gap = text.height / sketch.GetFactor();  // one text height, in metres

    const double r = model.innerDiameter / 2.0;
    const double rw = r + model.wallThickness;
    const double floor = -model.depth;
    const double slab = -model.topThickness;
    const double opening = model.coverDiameter / 2.0;
    const AcGeVector3d axis = Axis(model);
    const double axisAngle = std::atan2(axis.y, axis.x);

    std::vector<std::pair<double, double>> leftOpenings, rightOpenings;
    // Labels of the openings seen in the shaft: (u, lowest v, text), stacked later so none overlap.
    std::vector<std::tuple<double, double, std::wstring>> openingLabels;
    for (const CManholePipe& pipe : model.pipes) {
        const double phi = std::atan2(pipe.direction.y, pipe.direction.x) - axisAngle;
        const double c = std::cos(phi), s = std::sin(phi);
        const double bottom = floor + pipe.invertHeight, top = bottom + pipe.diameter;
        const std::wstring label = CManholeViewText::PipeLabel(pipe);
        if (std::fabs(s) < kInPlaneSine) {
            const double side = c > 0.0 ? 1.0 : -1.0;
            const double end = side * (rw + model.pipeLength * std::fabs(c));
            (side > 0 ? rightOpenings : leftOpenings).emplace_back(bottom, top);
            sketch.Line(side * r, bottom, end, bottom, pipeColour);
            sketch.Line(side * r, top, end, top, pipeColour);
            sketch.Line(end, bottom, end, top, pipeColour);
            const auto align = side > 0 ? CManholeSketch::alLeft : CManholeSketch::alRight;
            sketch.Text(end + side * gap * 0.5, top + gap, label, text.height, text.colour, text.style, align);
            if (model.hasCoverLevel)
                sketch.Text(end + side * gap * 0.5, bottom - gap, CManholeViewText::Level(model.coverLevel + bottom),
                            text.height, text.colour, text.style, align);
        } else {
            // Seen through the shaft on the far wall; the near wall is cut away, so dashed.
            sketch.Ellipse(r * c, bottom + pipe.diameter / 2.0, pipe.diameter / 2.0 * std::fabs(s), pipe.diameter / 2.0,
                           pipeColour, s > 0.0 ? nullptr : L"HIDDEN");
            openingLabels.emplace_back(r * c, top + gap, label);
        }
    }
    std::sort(openingLabels.begin(), openingLabels.end());
    double above = floor;
    for (const auto& [u, lowest, label] : openingLabels) {
        above = std::max(lowest, above + 1.6 * gap);
        sketch.Text(u, above, label, text.height, text.colour, text.style, CManholeSketch::alCentre);
    }

    DrawWall(sketch, -rw, -r, floor, slab, leftOpenings, wallColour);
    DrawWall(sketch, r, rw, floor, slab, rightOpenings, wallColour);
    if (model.bottomThickness > 0.0) sketch.Rectangle(-rw - 0.1, floor - model.bottomThickness, rw + 0.1, floor, wallColour);
    if (model.topThickness > 0.0) {
        sketch.Rectangle(-rw, slab, -opening, 0.0, wallColour);
        sketch.Rectangle(opening, slab, rw, 0.0, wallColour);
    }
    sketch.Rectangle(-opening, -std::min(0.08, model.depth), opening, 0.0, coverColour);

    // Ground beside the shaft, with the usual short strokes below it.
    for (const double side : {-1.0, 1.0}) {
        sketch.Line(side * rw, 0.0, side * (rw + 1.0), 0.0, wallColour);
        for (double at = rw + 0.15; at < rw + 1.0; at += 0.2)
            sketch.Line(side * at, 0.0, side * at - 0.1, -0.1, wallColour);
    }
    sketch.Line(0.0, floor - model.bottomThickness - 0.2, 0.0, 0.3, wallColour, L"CENTER");

    const double cover = model.hasCoverLevel ? model.coverLevel : 0.0;
    sketch.Text(-rw - gap * 0.5, gap, CManholeViewText::Level(cover), text.height, text.colour, text.style,
                CManholeSketch::alRight);
    sketch.Text(-r + gap * 0.5, floor + gap, CManholeViewText::Level(cover + floor), text.height, text.colour,
                text.style, CManholeSketch::alLeft);
    sketch.Text(0.0, floor - model.bottomThickness - 0.2 - 2.0 * gap, CManholeViewText::Title(9944, model.name),
                text.height, text.colour, text.style, CManholeSketch::alCentre);
}

}  // namespace XimoGis::Data
