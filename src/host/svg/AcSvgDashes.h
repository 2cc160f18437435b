#pragma once
// A linetype's dash pattern as SVG draws it: alternating dash and gap lengths starting with a
// dash, and the offset into them at which a line starts.

#include <vector>

struct AcSvgDashes {
    // Empty for a solid line.
    std::vector<double> lengths;
    double offset = 0.0;
    bool isSolid() const { return lengths.empty(); }
};

// The host's pattern (positive lengths draw, negative ones are gaps, 0 is a dot) times scale.
// Runs of the same kind merge, so the result alternates as SVG needs; a pattern that starts with
// a gap is turned to start with a dash and shifted by the offset. A pattern without gaps is solid.
AcSvgDashes acsvgDashes(const std::vector<double>& pattern, double scale);
