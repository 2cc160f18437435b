#include "framework/data/CManholeTopView.h"

#include "framework/data/CManholeSketch.h"
#include "framework/data/CManholeViewText.h"

#include <algorithm>
#include <cmath>

namespace XimoGis::Data {

void CManholeTopView::Draw(const CManholeModel& model, const CPropertiesEx& properties, CManholeSketch& sketch) {
    const int wallColour = properties.GetIntProperty(L"MSMS_WALL_COLOR", 7, 1);
    const int pipeColour = properties.GetIntProperty(L"MSMS_PIPE_COLOR", 5, 1);
    const int coverColour = properties.GetIntProperty(L"MSMS_COVER_COLOR", 1, 1);
    const CManholeViewText text = CManholeViewText::FromProperties(properties);
    const double gap = text.height / sketch.GetFactor();

    const double r = model.innerDiameter / 2.0;
    const double rw = r + model.wallThickness;
    const double reach = rw + model.pipeLength;
    sketch.Circle(0.0, 0.0, rw, wallColour);
    sketch.Circle(0.0, 0.0, r, wallColour);
    sketch.Circle(0.0, 0.0, model.coverDiameter / 2.0, coverColour);
    sketch.Line(-rw - 0.1, 0.0, rw + 0.1, 0.0, wallColour, L"CENTER");
    sketch.Line(0.0, -rw - 0.1, 0.0, rw + 0.1, wallColour, L"CENTER");

    for (const CManholePipe& pipe : model.pipes) {
        const AcGeVector3d& d = pipe.direction;
        const AcGeVector3d n(-d.y, d.x, 0.0);
        const double half = std::min(pipe.diameter / 2.0, r);
        // The pipe's edges start where they meet the shaft's inner face.
        const double start = std::sqrt(std::max(0.0, r * r - half * half));
        for (const double side : {-1.0, 1.0}) {
            const AcGeVector3d offset = n * (side * half);
            sketch.Line(d.x * start + offset.x, d.y * start + offset.y, d.x * reach + offset.x, d.y * reach + offset.y,
                        pipeColour);
        }
        sketch.Line(d.x * reach + n.x * half, d.y * reach + n.y * half, d.x * reach - n.x * half,
                    d.y * reach - n.y * half, pipeColour);

        // Flow arrow on the pipe's axis between the wall and the stub end.
        const double size = std::min(half * 0.8, model.pipeLength * 0.3);
        const double middle = (rw + reach) / 2.0;
        const double sense = pipe.incoming ? -1.0 : 1.0;
        const AcGeVector3d tip = d * (middle + sense * size / 2.0);
        const AcGeVector3d tail = d * (middle - sense * size / 2.0);
        sketch.Line(tail.x, tail.y, tip.x, tip.y, pipeColour);
        for (const double side : {-1.0, 1.0}) {
            const AcGeVector3d wing = tip - d * (sense * size * 0.5) + n * (side * size * 0.35);
            sketch.Line(tip.x, tip.y, wing.x, wing.y, pipeColour);
        }

        const AcGeVector3d at = d * (reach + gap);
        const auto align = std::fabs(d.x) < 0.3 ? CManholeSketch::alCentre
                           : d.x > 0.0          ? CManholeSketch::alLeft
                                                : CManholeSketch::alRight;
        sketch.Text(at.x, at.y + (std::fabs(d.x) < 0.3 ? (d.y > 0 ? gap : -gap) : 0.0),
                    CManholeViewText::PipeLabel(pipe), text.height, text.colour, text.style, align);
    }
    sketch.Text(0.0, -reach - 4.5 * gap, CManholeViewText::Title(9943, model.name), text.height, text.colour, text.style,
                CManholeSketch::alCentre);
}

}  // namespace XimoGis::Data
