#pragma once

#include <cmath>

#include "host/entities/AcDbEntity.h"

// A circular arc in the XY plane, counter-clockwise from the start angle to the end angle.
class AcDbArc : public AcDbEntity {
public:
    AcDbArc() = default;
    AcDbArc(const AcGePoint3d& center, double radius, double startAngle, double endAngle)
        : m_center(center), m_radius(radius), m_start(startAngle), m_end(endAngle) {}
    const ACHAR* isA() const override { return L"AcDbArc"; }
    AcDbObject* clone() const override { return new AcDbArc(*this); }

    AcGePoint3d center() const { return m_center; }
    Acad::ErrorStatus setCenter(const AcGePoint3d& p) { m_center = p; return Acad::eOk; }
    double radius() const { return m_radius; }
    Acad::ErrorStatus setRadius(double r);
    double startAngle() const { return m_start; }
    double endAngle() const { return m_end; }
    Acad::ErrorStatus setStartAngle(double a) { m_start = a; return Acad::eOk; }
    Acad::ErrorStatus setEndAngle(double a) { m_end = a; return Acad::eOk; }
    AcGePoint3d startPoint() const { return pointAt(m_start); }
    AcGePoint3d endPoint() const { return pointAt(m_end); }
    // The counter-clockwise sweep from start to end, in (0, 2 pi].
    double sweep() const;
    AcGePoint3d pointAt(double angle) const;

    Acad::ErrorStatus getGeomExtents(AcDbExtents& extents) const override;
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& m) override;

private:
    AcGePoint3d m_center;
    double m_radius = 1.0;
    double m_start = 0.0;
    double m_end = M_PI;
};
