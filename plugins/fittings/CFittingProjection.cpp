#include "fittings/CFittingProjection.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace XimoGis::AssemblySchemes::Fittings {

namespace {

constexpr double kParallel = 1e-9;  // tolerance of cosines that are taken as 0 or 1
constexpr int kEllipseSegments = 48;

struct Vector2 {
    double x = 0.0;
    double y = 0.0;
    Vector2 operator+(const Vector2& o) const { return {x + o.x, y + o.y}; }
    Vector2 operator-(const Vector2& o) const { return {x - o.x, y - o.y}; }
    Vector2 operator*(double s) const { return {x * s, y * s}; }
    double Length() const { return std::hypot(x, y); }
    Vector2 Unit() const { return *this * (1.0 / Length()); }
    Vector2 Perpendicular() const { return {-y, x}; }
    double Cross(const Vector2& o) const { return x * o.y - y * o.x; }
    double Dot(const Vector2& o) const { return x * o.x + y * o.y; }
    double Angle() const { return std::atan2(y, x); }
    AcGePoint2d Point() const { return {x, y}; }
};

class Projector {
public:
    Projector(const CFittingProjection::Frame& frame, CFittingSketch& sketch) : m_frame(frame), m_sketch(sketch) {}

    void Tube(const CTubePart& tube) {
        const AcGeVector3d axis = tube.end - tube.start;
        if (axis.length() <= kParallel) return;
        const double facing = std::abs(axis.normal().dotProduct(m_frame.forward));
        const double r0 = tube.startDiameter / 2.0;
        const double r1 = tube.endDiameter / 2.0;
        if (facing >= 1.0 - kParallel) {
            m_sketch.AddCircle(Project(tube.start).Point(), r0);
            if (std::abs(r1 - r0) > kParallel) m_sketch.AddCircle(Project(tube.end).Point(), r1);
            return;
        }
        const Vector2 p0 = Project(tube.start);
        const Vector2 p1 = Project(tube.end);
        const Vector2 side = (p1 - p0).Unit().Perpendicular();
        m_sketch.AddLine((p0 + side * r0).Point(), (p1 + side * r1).Point());
        m_sketch.AddLine((p0 - side * r0).Point(), (p1 - side * r1).Point());
        if (tube.capped) {
            Disc(tube.start, axis.normal(), r0, facing);
            Disc(tube.end, axis.normal(), r1, facing);
        }
    }

    void Flange(const CFlangePart& flange) {
        const double facing = std::abs(flange.normal.dotProduct(m_frame.forward));
        const double r = flange.diameter / 2.0;
        if (facing >= 1.0 - kParallel) {
            m_sketch.AddCircle(Project(flange.face).Point(), r);
            return;
        }
        const AcGePoint3d back = flange.face - flange.normal * flange.thickness;
        const Vector2 face = Project(flange.face);
        const Vector2 rear = Project(back);
        const Vector2 across = ProjectDirection(flange.normal).Unit().Perpendicular();
        if (facing <= kParallel && flange.joint) {
            m_sketch.AddFlangeFace((face + across * r).Point(), (face - across * r).Point(), flange.dn, flange.pn);
        } else {
            Disc(flange.face, flange.normal, r, facing);
        }
        Disc(back, flange.normal, r, facing);
        m_sketch.AddLine((face + across * r).Point(), (rear + across * r).Point());
        m_sketch.AddLine((face - across * r).Point(), (rear - across * r).Point());
    }

    bool Bend(const CBendPart& bend) {
        const AcGeVector3d normal = bend.radial.crossProduct(bend.direction);
        const double facing = std::abs(normal.dotProduct(m_frame.forward));
        const double r = bend.diameter / 2.0;
        const Vector2 centre = Project(bend.centre);
        const Vector2 radial = ProjectDirection(bend.radial);
        const Vector2 direction = ProjectDirection(bend.direction);
        if (facing >= 1.0 - kParallel) {
            const Vector2 last = radial * std::cos(bend.angle) + direction * std::sin(bend.angle);
            // Seen from the other side of its plane the bend turns clockwise on the drawing.
            const bool counterClockwise = radial.Cross(direction) > 0.0;
            const double from = counterClockwise ? radial.Angle() : last.Angle();
            const double to = counterClockwise ? last.Angle() : radial.Angle();
            m_sketch.AddArc(centre.Point(), bend.radius + r, from, to);
            if (bend.radius > r) m_sketch.AddArc(centre.Point(), bend.radius - r, from, to);
            return true;
        }
        if (facing > kParallel) return false;
        // Edge-on the bend's axis lies on one line of the drawing: a band as wide as the tube.
        const Vector2 along = (radial.Length() > direction.Length() ? radial : direction).Unit();
        double low = 0.0;
        double high = 0.0;
        constexpr int kSamples = 64;
        for (int i = 0; i <= kSamples; ++i) {
            const double t = bend.angle * i / kSamples;
            const double s = (radial * std::cos(t) + direction * std::sin(t)).Dot(along) * bend.radius;
            low = i == 0 ? s : std::min(low, s);
            high = i == 0 ? s : std::max(high, s);
        }
        const Vector2 side = along.Perpendicular() * r;
        m_sketch.AddLine((centre + along * low + side).Point(), (centre + along * high + side).Point());
        m_sketch.AddLine((centre + along * low - side).Point(), (centre + along * high - side).Point());
        return true;
    }

private:
    Vector2 Project(const AcGePoint3d& p) const {
        const AcGeVector3d v = p.asVector();
        return {v.dotProduct(m_frame.right), v.dotProduct(m_frame.up)};
    }
    Vector2 ProjectDirection(const AcGeVector3d& v) const {
        return {v.dotProduct(m_frame.right), v.dotProduct(m_frame.up)};
    }

    // A circle of radius r around `centre` square to `normal`: a line edge-on, an ellipse obliquely,
    // a circle face-on.
    void Disc(const AcGePoint3d& centre, const AcGeVector3d& normal, double r, double facing) {
        const Vector2 c = Project(centre);
        if (facing >= 1.0 - kParallel) {
            m_sketch.AddCircle(c.Point(), r);
            return;
        }
        const Vector2 towards = ProjectDirection(normal).Unit();
        const Vector2 across = towards.Perpendicular();
        if (facing <= kParallel) {
            m_sketch.AddLine((c + across * r).Point(), (c - across * r).Point());
            return;
        }
        std::vector<AcGePoint2d> points;
        for (int i = 0; i < kEllipseSegments; ++i) {
            const double t = 2.0 * std::numbers::pi * i / kEllipseSegments;
            points.push_back((c + across * (r * std::cos(t)) + towards * (r * facing * std::sin(t))).Point());
        }
        m_sketch.AddPolyline(std::move(points), true);
    }

    const CFittingProjection::Frame m_frame;  // a copy: views give their frames by value
    CFittingSketch& m_sketch;
};

}  // namespace

CFittingProjection::Frame CFittingProjection::GetFrame(enmViewDirection view) {
    const AcGeVector3d x = AcGeVector3d::kXAxis;
    const AcGeVector3d y = AcGeVector3d::kYAxis;
    const AcGeVector3d z = AcGeVector3d::kZAxis;
    switch (view) {
        case eViewBottom: return {-x, y, z};
        case eViewFront: return {x, z, y};
        case eViewBack: return {-x, z, -y};
        case eViewLeft: return {-y, z, x};
        case eViewRight: return {y, z, -x};
        case eViewTop:
        default: return {x, y, -z};
    }
}

bool CFittingProjection::Project(const CFittingModel& model, enmViewDirection view, CFittingSketch& sketch) {
    Projector projector(GetFrame(view), sketch);
    bool complete = true;
    for (const CBendPart& bend : model.GetBends()) complete = projector.Bend(bend) && complete;
    for (const CTubePart& tube : model.GetTubes()) projector.Tube(tube);
    for (const CFlangePart& flange : model.GetFlanges()) projector.Flange(flange);
    return complete;
}

}  // namespace XimoGis::AssemblySchemes::Fittings
