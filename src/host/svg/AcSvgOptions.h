#pragma once
// What a picture of a drawing shows and how big it is.

#include "host/database/AcDbExtents.h"

struct AcSvgOptions {
    // The part of the drawing to show, in drawing coordinates; the drawing's extents when invalid
    // (the default). Only X and Y count.
    AcDbExtents window;
    // The picture fits in this box (SVG user units, shown as pixels), keeping the proportions.
    double maxWidth = 1600.0;
    double maxHeight = 1600.0;
    // Free space around the window on every side, in the same units.
    double margin = 20.0;
    // Stroke width of every curve without a width of its own: line weights are not shown.
    double lineWidth = 0.8;
    // Multiplies every entity's linetype scale, like the drawing's global linetype scale.
    double linetypeScale = 1.0;
    // A dash pattern shorter than this on the picture is stretched to it, so that a linetype still
    // reads as dashed when a large drawing is shown small.
    double minPatternLength = 6.0;
    // Block nesting deeper than this is not drawn: it can only be a block that holds itself.
    int maxBlockDepth = 32;
};
