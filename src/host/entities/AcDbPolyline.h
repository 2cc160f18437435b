#pragma once
// The lightweight polyline: 2D vertices at one elevation, with bulges and widths per segment.

#include <vector>

#include "host/entities/AcDbEntity.h"

class AcDbPolyline : public AcDbEntity {
public:
    AcDbPolyline() = default;
    const ACHAR* isA() const override { return L"AcDbPolyline"; }
    AcDbObject* clone() const override { return new AcDbPolyline(*this); }

    unsigned numVerts() const { return static_cast<unsigned>(m_vertices.size()); }
    Acad::ErrorStatus addVertexAt(unsigned index, const AcGePoint2d& pt, double bulge = 0.0, double startWidth = 0.0,
                                  double endWidth = 0.0);
    Acad::ErrorStatus removeVertexAt(unsigned index);
    Acad::ErrorStatus getPointAt(unsigned index, AcGePoint2d& pt) const;
    Acad::ErrorStatus getPointAt(unsigned index, AcGePoint3d& pt) const;
    Acad::ErrorStatus setPointAt(unsigned index, const AcGePoint2d& pt);
    Acad::ErrorStatus getBulgeAt(unsigned index, double& bulge) const;
    Acad::ErrorStatus setBulgeAt(unsigned index, double bulge);
    Acad::ErrorStatus getWidthsAt(unsigned index, double& startWidth, double& endWidth) const;
    Acad::ErrorStatus setWidthsAt(unsigned index, double startWidth, double endWidth);

    bool isClosed() const { return m_closed; }
    void setClosed(bool closed) { m_closed = closed; }
    double elevation() const { return m_elevation; }
    void setElevation(double elevation) { m_elevation = elevation; }
    // The width shared by every segment, or -1 when the segments differ.
    double constantWidth() const;
    Acad::ErrorStatus setConstantWidth(double width);

    Acad::ErrorStatus getGeomExtents(AcDbExtents& extents) const override;
    // Transforms in the drawing plane (rotation about Z, scaling, moving, mirroring).
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& m) override;
    // Lines and arcs, one per segment.
    Acad::ErrorStatus explode(AcDbVoidPtrArray& entities) const override;

private:
    struct Vertex {
        AcGePoint2d point;
        double bulge = 0.0;
        double startWidth = 0.0;
        double endWidth = 0.0;
    };
    bool validIndex(unsigned index) const { return index < m_vertices.size(); }

    std::vector<Vertex> m_vertices;
    bool m_closed = false;
    double m_elevation = 0.0;
};
