#pragma once

#include "host/entities/AcDbEntity.h"

class AcDbCircle : public AcDbEntity {
public:
    AcDbCircle() = default;
    AcDbCircle(const AcGePoint3d& center, const AcGeVector3d& normal, double radius)
        : m_center(center), m_normal(normal.normal()), m_radius(radius) {}
    const ACHAR* isA() const override { return L"AcDbCircle"; }
    AcDbObject* clone() const override { return new AcDbCircle(*this); }

    AcGePoint3d center() const { return m_center; }
    Acad::ErrorStatus setCenter(const AcGePoint3d& p) { m_center = p; return Acad::eOk; }
    double radius() const { return m_radius; }
    Acad::ErrorStatus setRadius(double r);
    AcGeVector3d normal() const { return m_normal; }
    Acad::ErrorStatus setNormal(const AcGeVector3d& n) { m_normal = n.normal(); return Acad::eOk; }

    Acad::ErrorStatus getGeomExtents(AcDbExtents& extents) const override;
    // Circles stay circles under similarity transforms only.
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& m) override;

private:
    AcGePoint3d m_center;
    AcGeVector3d m_normal = AcGeVector3d::kZAxis;
    double m_radius = 1.0;
};
