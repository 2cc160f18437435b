#include "host/entities/AcDbPolyline.h"

#include <cmath>

#include "host/entities/AcDbArc.h"
#include "host/entities/AcDbLine.h"

Acad::ErrorStatus AcDbPolyline::addVertexAt(unsigned index, const AcGePoint2d& pt, double bulge, double startWidth,
                                            double endWidth) {
    if (index > m_vertices.size()) index = static_cast<unsigned>(m_vertices.size());
    m_vertices.insert(m_vertices.begin() + index, Vertex{pt, bulge, startWidth, endWidth});
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::removeVertexAt(unsigned index) {
    if (!validIndex(index)) return Acad::eInvalidIndex;
    m_vertices.erase(m_vertices.begin() + index);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getPointAt(unsigned index, AcGePoint2d& pt) const {
    if (!validIndex(index)) return Acad::eInvalidIndex;
    pt = m_vertices[index].point;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getPointAt(unsigned index, AcGePoint3d& pt) const {
    if (!validIndex(index)) return Acad::eInvalidIndex;
    pt.set(m_vertices[index].point.x, m_vertices[index].point.y, m_elevation);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::setPointAt(unsigned index, const AcGePoint2d& pt) {
    if (!validIndex(index)) return Acad::eInvalidIndex;
    m_vertices[index].point = pt;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getBulgeAt(unsigned index, double& bulge) const {
    if (!validIndex(index)) return Acad::eInvalidIndex;
    bulge = m_vertices[index].bulge;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::setBulgeAt(unsigned index, double bulge) {
    if (!validIndex(index)) return Acad::eInvalidIndex;
    m_vertices[index].bulge = bulge;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getWidthsAt(unsigned index, double& startWidth, double& endWidth) const {
    if (!validIndex(index)) return Acad::eInvalidIndex;
    startWidth = m_vertices[index].startWidth;
    endWidth = m_vertices[index].endWidth;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::setWidthsAt(unsigned index, double startWidth, double endWidth) {
    if (!validIndex(index)) return Acad::eInvalidIndex;
    m_vertices[index].startWidth = startWidth;
    m_vertices[index].endWidth = endWidth;
    return Acad::eOk;
}

double AcDbPolyline::constantWidth() const {
    if (m_vertices.empty()) return 0.0;
    const double w = m_vertices.front().startWidth;
    for (const Vertex& v : m_vertices)
        if (v.startWidth != w || v.endWidth != w) return -1.0;
    return w;
}

Acad::ErrorStatus AcDbPolyline::setConstantWidth(double width) {
    if (width < 0.0) return Acad::eInvalidInput;
    for (Vertex& v : m_vertices) v.startWidth = v.endWidth = width;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getGeomExtents(AcDbExtents& extents) const {
    extents = explodedExtents();
    if (!extents.isValid())  // a single vertex has no segments
        for (const Vertex& v : m_vertices) extents.addPoint({v.point.x, v.point.y, m_elevation});
    return extents.isValid() ? Acad::eOk : Acad::eInvalidExtents;
}

Acad::ErrorStatus AcDbPolyline::transformBy(const AcGeMatrix3d& m) {
    const double scale = m.scale();
    for (Vertex& v : m_vertices) {
        const AcGePoint3d p = m * AcGePoint3d(v.point.x, v.point.y, m_elevation);
        v.point = AcGePoint2d(p.x, p.y);
        if (m.isMirroring()) v.bulge = -v.bulge;
        v.startWidth *= scale;
        v.endWidth *= scale;
    }
    m_elevation = (m * AcGePoint3d(0, 0, m_elevation)).z;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::explode(AcDbVoidPtrArray& entities) const {
    const std::size_t n = m_vertices.size();
    const std::size_t segments = m_closed ? n : (n > 0 ? n - 1 : 0);
    for (std::size_t i = 0; i < segments; ++i) {
        const Vertex& a = m_vertices[i];
        const Vertex& b = m_vertices[(i + 1) % n];
        const AcGePoint3d p1(a.point.x, a.point.y, m_elevation);
        const AcGePoint3d p2(b.point.x, b.point.y, m_elevation);
        AcDbEntity* part = nullptr;
        if (std::fabs(a.bulge) < 1e-12 || p1.distanceTo(p2) < 1e-12) {
            part = new AcDbLine(p1, p2);
        } else {
            // The bulge is tan(included angle / 4); negative bulges run clockwise.
            const double theta = 4.0 * std::atan(a.bulge);
            const double chord = p1.distanceTo(p2);
            const double radius = chord / (2.0 * std::sin(std::fabs(theta) / 2.0));
            const AcGeVector3d along = (p2 - p1).normal();
            const AcGeVector3d left(-along.y, along.x, 0.0);
            const double sagittaToCenter = radius * std::cos(theta / 2.0);
            const AcGePoint3d mid = p1 + (p2 - p1) * 0.5;
            const AcGePoint3d center = mid + left * (a.bulge > 0 ? sagittaToCenter : -sagittaToCenter);
            double s = std::atan2(p1.y - center.y, p1.x - center.x);
            double e = std::atan2(p2.y - center.y, p2.x - center.x);
            if (a.bulge < 0) std::swap(s, e);
            part = new AcDbArc(center, radius, s, e);
        }
        part->setPropertiesFrom(*this);
        entities.append(part);
    }
    return Acad::eOk;
}
