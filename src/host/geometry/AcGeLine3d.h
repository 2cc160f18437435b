#pragma once
// Linear entities: the unbounded line and the line segment.

#include "host/geometry/AcGePoint3d.h"

class AcGeLinearEnt3d {
public:
    virtual ~AcGeLinearEnt3d() = default;

    AcGePoint3d pointOnLine() const { return m_point; }
    AcGeVector3d direction() const { return m_direction.normal(); }

    // Intersection of the two unbounded carriers; false when they are parallel or skew.
    bool intersectWith(const AcGeLinearEnt3d& other, AcGePoint3d& point,
                       const AcGeTol& tol = AcGeContext::gTol) const;
    // The point of this entity nearest to p (clamped to a segment's ends).
    virtual AcGePoint3d closestPointTo(const AcGePoint3d& p, const AcGeTol& tol = AcGeContext::gTol) const;
    bool isParallelTo(const AcGeLinearEnt3d& other, const AcGeTol& tol = AcGeContext::gTol) const;
    // True when both lie on one line.
    bool isColinearTo(const AcGeLinearEnt3d& other, const AcGeTol& tol = AcGeContext::gTol) const;
    bool isOn(const AcGePoint3d& p, const AcGeTol& tol = AcGeContext::gTol) const;

protected:
    AcGeLinearEnt3d() = default;
    AcGeLinearEnt3d(const AcGePoint3d& point, const AcGeVector3d& direction)
        : m_point(point), m_direction(direction) {}
    // Parameter of the projection of p on the carrier, in units of the direction vector.
    double parameterOf(const AcGePoint3d& p) const;
    // A segment's parameters lie in [0, 1]; a line's are unbounded.
    virtual bool isBounded() const = 0;

    AcGePoint3d m_point;
    AcGeVector3d m_direction{1.0, 0.0, 0.0};
};

class AcGeLine3d : public AcGeLinearEnt3d {
public:
    AcGeLine3d() = default;
    AcGeLine3d(const AcGePoint3d& point, const AcGeVector3d& direction) : AcGeLinearEnt3d(point, direction) {}
    AcGeLine3d(const AcGePoint3d& p1, const AcGePoint3d& p2) : AcGeLinearEnt3d(p1, p2 - p1) {}
    AcGeLine3d& set(const AcGePoint3d& point, const AcGeVector3d& direction);

protected:
    bool isBounded() const override { return false; }
};

class AcGeLineSeg3d : public AcGeLinearEnt3d {
public:
    AcGeLineSeg3d() = default;
    AcGeLineSeg3d(const AcGePoint3d& start, const AcGePoint3d& end) : AcGeLinearEnt3d(start, end - start) {}
    AcGePoint3d startPoint() const { return m_point; }
    AcGePoint3d endPoint() const { return m_point + m_direction; }
    AcGePoint3d midPoint() const { return m_point + m_direction * 0.5; }
    double length() const { return m_direction.length(); }

protected:
    bool isBounded() const override { return true; }
};
