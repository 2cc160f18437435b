#pragma once
// Builds SVG path data from lines and circular arcs given in an entity's own coordinates, placed
// on the picture by a transform. Arcs stay SVG arcs while the transform keeps circles round;
// under unequal scaling (a block inserted with different X and Y scales) they become short lines.

#include <string>

#include "host/geometry/AcGeMatrix3d.h"

class AcSvgPath {
public:
    explicit AcSvgPath(const AcGeMatrix3d& toPicture) : m_toPicture(toPicture) {}

    void moveTo(const AcGePoint3d& p);
    void lineTo(const AcGePoint3d& p);
    // An arc from the current point, which lies on it at startAngle, around center; sweep is
    // counter-clockwise when positive, and a full turn (2 pi) draws a whole circle.
    void arcTo(const AcGePoint3d& center, double radius, double startAngle, double sweep);
    void close();
    const std::string& data() const { return m_data; }

    // Whether the transform keeps circles round: rotation, equal scaling, reflection, moving.
    static bool keepsCircles(const AcGeMatrix3d& m);
    // How lengths scale (the square root of the area scale in the drawing plane).
    static double lengthScale(const AcGeMatrix3d& m);
    // Whether the transform turns counter-clockwise into clockwise in the drawing plane.
    static bool reversesTurns(const AcGeMatrix3d& m);

private:
    void point(char command, const AcGePoint3d& p);

    AcGeMatrix3d m_toPicture;
    std::string m_data;
};
