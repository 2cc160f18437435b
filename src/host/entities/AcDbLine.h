#pragma once

#include "host/entities/AcDbEntity.h"

class AcDbLine : public AcDbEntity {
public:
    AcDbLine() = default;
    AcDbLine(const AcGePoint3d& start, const AcGePoint3d& end) : m_start(start), m_end(end) {}
    const ACHAR* isA() const override { return L"AcDbLine"; }
    AcDbObject* clone() const override { return new AcDbLine(*this); }

    AcGePoint3d startPoint() const { return m_start; }
    AcGePoint3d endPoint() const { return m_end; }
    Acad::ErrorStatus setStartPoint(const AcGePoint3d& p) { m_start = p; return Acad::eOk; }
    Acad::ErrorStatus setEndPoint(const AcGePoint3d& p) { m_end = p; return Acad::eOk; }

    Acad::ErrorStatus getGeomExtents(AcDbExtents& extents) const override;
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& m) override;

private:
    AcGePoint3d m_start;
    AcGePoint3d m_end;
};
