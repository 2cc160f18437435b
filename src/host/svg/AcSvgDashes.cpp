#include "host/svg/AcSvgDashes.h"

#include <cmath>

AcSvgDashes acsvgDashes(const std::vector<double>& pattern, double scale) {
    // Runs: (isGap, length), merged so that kinds alternate.
    std::vector<std::pair<bool, double>> runs;
    for (double d : pattern) {
        const bool gap = d < 0.0;
        const double length = std::fabs(d) * scale;
        if (!runs.empty() && runs.back().first == gap) runs.back().second += length;
        else runs.emplace_back(gap, length);
    }
    AcSvgDashes result;
    bool hasGap = false;
    for (const auto& run : runs) hasGap = hasGap || (run.first && run.second > 0.0);
    if (!hasGap) return result;

    // Start on a dash: a leading gap moves to the end, and the line starts that far into it.
    if (runs.front().first) {
        const auto lead = runs.front();
        runs.erase(runs.begin());
        if (runs.back().first) runs.back().second += lead.second;
        else runs.push_back(lead);
        double total = 0.0;
        for (const auto& run : runs) total += run.second;
        result.offset = total - lead.second;
    }
    // End on a gap: a trailing dash joins the first one, and the line starts inside that dash.
    if (!runs.back().first) {
        const double tail = runs.back().second;
        runs.pop_back();
        runs.front().second += tail;
        result.offset += tail;
    }
    for (const auto& run : runs) result.lengths.push_back(run.second);
    return result;
}
