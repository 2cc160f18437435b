#pragma once

#include "host/entities/AcDbEntity.h"

class AcDbPoint : public AcDbEntity {
public:
    AcDbPoint() = default;
    explicit AcDbPoint(const AcGePoint3d& position) : m_position(position) {}
    const ACHAR* isA() const override { return L"AcDbPoint"; }
    AcDbObject* clone() const override { return new AcDbPoint(*this); }

    AcGePoint3d position() const { return m_position; }
    Acad::ErrorStatus setPosition(const AcGePoint3d& p) { m_position = p; return Acad::eOk; }

    Acad::ErrorStatus getGeomExtents(AcDbExtents& extents) const override;
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& m) override;

private:
    AcGePoint3d m_position;
};
