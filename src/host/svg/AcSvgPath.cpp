#include "host/svg/AcSvgPath.h"

#include <cmath>

#include "host/svg/AcSvgWriter.h"

namespace {
double planarDeterminant(const AcGeMatrix3d& m) { return m.entry[0][0] * m.entry[1][1] - m.entry[0][1] * m.entry[1][0]; }

AcGePoint3d onCircle(const AcGePoint3d& center, double radius, double angle) {
    return {center.x + radius * std::cos(angle), center.y + radius * std::sin(angle), center.z};
}
}  // namespace

bool AcSvgPath::keepsCircles(const AcGeMatrix3d& m) {
    const double ax = m.entry[0][0], ay = m.entry[1][0];  // image of the X axis
    const double bx = m.entry[0][1], by = m.entry[1][1];  // image of the Y axis
    const double la = std::hypot(ax, ay), lb = std::hypot(bx, by);
    const double tol = 1e-9 * std::max(1.0, la + lb);
    return std::fabs(la - lb) <= tol && std::fabs(ax * bx + ay * by) <= tol * std::max(1.0, la * lb);
}

double AcSvgPath::lengthScale(const AcGeMatrix3d& m) { return std::sqrt(std::fabs(planarDeterminant(m))); }

bool AcSvgPath::reversesTurns(const AcGeMatrix3d& m) { return planarDeterminant(m) < 0.0; }

void AcSvgPath::point(char command, const AcGePoint3d& p) {
    const AcGePoint3d q = m_toPicture * p;
    if (!m_data.empty()) m_data += ' ';
    m_data += command;
    m_data += acsvgNumber(q.x) + ' ' + acsvgNumber(q.y);
}

void AcSvgPath::moveTo(const AcGePoint3d& p) { point('M', p); }

void AcSvgPath::lineTo(const AcGePoint3d& p) { point('L', p); }

void AcSvgPath::close() { m_data += m_data.empty() ? "Z" : " Z"; }

void AcSvgPath::arcTo(const AcGePoint3d& center, double radius, double startAngle, double sweep) {
    if (!keepsCircles(m_toPicture)) {
        // Short chords: at most 5 degrees each, at least four per arc.
        const int n = std::max(4, static_cast<int>(std::ceil(std::fabs(sweep) / (M_PI / 36.0))));
        for (int i = 1; i <= n; ++i) lineTo(onCircle(center, radius, startAngle + sweep * i / n));
        return;
    }
    // SVG cannot draw a whole turn as one arc: two halves.
    if (std::fabs(sweep) >= 2.0 * M_PI - 1e-12) {
        arcTo(center, radius, startAngle, sweep / 2.0);
        arcTo(center, radius, startAngle + sweep / 2.0, sweep / 2.0);
        return;
    }
    const double r = radius * lengthScale(m_toPicture);
    const bool large = std::fabs(sweep) > M_PI;
    // SVG's sweep flag 1 turns from the picture's X axis towards its Y axis; a counter-clockwise
    // arc keeps that sense exactly when the transform does not mirror.
    const bool positive = (sweep > 0.0) != reversesTurns(m_toPicture);
    m_data += " A" + acsvgNumber(r) + ' ' + acsvgNumber(r) + " 0 " + (large ? '1' : '0') + ' ' + (positive ? '1' : '0');
    const AcGePoint3d end = m_toPicture * onCircle(center, radius, startAngle + sweep);
    m_data += ' ' + acsvgNumber(end.x) + ' ' + acsvgNumber(end.y);
}
