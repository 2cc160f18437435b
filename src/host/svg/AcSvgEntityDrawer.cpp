#include "host/svg/AcSvgEntityDrawer.h"

#include <algorithm>
#include <cmath>

#include "host/base/AcString.h"
#include "host/database/AcDbDatabase.h"
#include "host/database/acdbOpenObject.h"
#include "host/entities/AcDbArc.h"
#include "host/entities/AcDbAttributeDefinition.h"
#include "host/entities/AcDbCircle.h"
#include "host/entities/AcDbLine.h"
#include "host/entities/AcDbMText.h"
#include "host/entities/AcDbPoint.h"
#include "host/entities/AcDbPolyline.h"
#include "host/svg/AcSvgPalette.h"
#include "host/svg/AcSvgPath.h"

namespace {
// Radius of a point's mark on the picture.
constexpr double kPointMark = 1.5;

std::string dashList(const AcSvgDashes& dashes) {
    std::string list;
    for (double d : dashes.lengths) list += (list.empty() ? "" : " ") + acsvgNumber(d);
    return list;
}
}  // namespace

AcSvgEntityDrawer::AcSvgEntityDrawer(AcSvgWriter& out, const AcSvgView& view, const AcSvgOptions& options,
                                     const AcSvgProperties& properties)
    : m_out(out), m_view(view), m_options(options), m_properties(properties), m_text(out) {}

AcSvgEntityDrawer::Pen AcSvgEntityDrawer::penFor(const AcDbEntity& entity, const AcGeMatrix3d& toPicture,
                                                 const AcSvgInherited& inherited) const {
    Pen pen;
    const Adesk::UInt16 color = m_properties.colorOf(entity, inherited);
    // White (7) is the host's colour for "the opposite of the background": black on white paper.
    pen.color = acsvgRgbHex(color == 7 ? 0x000000 : acsvgAciToRgb(color));
    const auto& pattern = m_properties.dashesOf(m_properties.linetypeOf(entity, inherited));
    double scale = entity.linetypeScale() * m_options.linetypeScale * AcSvgPath::lengthScale(toPicture);
    double length = 0.0;
    for (double d : pattern) length += std::fabs(d);
    if (length * scale > 0.0 && length * scale < m_options.minPatternLength)
        scale = m_options.minPatternLength / length;
    if (scale > 0.0) pen.dashes = acsvgDashes(pattern, scale);
    return pen;
}

AcSvgWriter& AcSvgEntityDrawer::startCurve(const char* element, const char* kind, const Pen& pen) {
    m_out.start(element).attribute("class", kind).attribute("stroke", pen.color);
    if (!pen.dashes.isSolid()) {
        m_out.attribute("stroke-dasharray", dashList(pen.dashes));
        if (pen.dashes.offset != 0.0) m_out.attribute("stroke-dashoffset", pen.dashes.offset);
    }
    return m_out;
}

void AcSvgEntityDrawer::draw(const AcDbEntity& entity, const AcGeMatrix3d& toWorld, const AcSvgInherited& inherited,
                             int depth) {
    if (!m_properties.isVisible(entity, inherited)) return;
    if (const auto* reference = dynamic_cast<const AcDbBlockReference*>(&entity)) {
        drawReference(*reference, toWorld, inherited, depth);
        return;
    }
    const AcGeMatrix3d toPicture = m_view.toPicture() * toWorld;
    const Pen pen = penFor(entity, toPicture, inherited);
    if (const auto* definition = dynamic_cast<const AcDbAttributeDefinition*>(&entity)) {
        // In model space a definition shows its tag; in a block only constant ones show, as text.
        if (depth == 0)
            m_text.drawText(*definition, definition->tag(), toPicture, pen.color,
                            m_properties.textStyle(definition->textStyleName()), "attdef");
        else if (definition->isConstant() && !definition->isInvisible())
            m_text.drawText(*definition, definition->textString(), toPicture, pen.color,
                            m_properties.textStyle(definition->textStyleName()), "attribute");
    } else if (const auto* attribute = dynamic_cast<const AcDbAttribute*>(&entity)) {
        if (!attribute->isInvisible())
            m_text.drawText(*attribute, attribute->textString(), toPicture, pen.color,
                            m_properties.textStyle(attribute->textStyleName()), "attribute");
    } else if (const auto* text = dynamic_cast<const AcDbText*>(&entity)) {
        m_text.drawText(*text, text->textString(), toPicture, pen.color, m_properties.textStyle(text->textStyleName()),
                        "text");
    } else if (const auto* mtext = dynamic_cast<const AcDbMText*>(&entity)) {
        m_text.drawMText(*mtext, toPicture, pen.color, m_properties.textStyle(mtext->textStyleName()));
    } else if (const auto* line = dynamic_cast<const AcDbLine*>(&entity)) {
        drawLine(*line, toPicture, pen);
    } else if (const auto* polyline = dynamic_cast<const AcDbPolyline*>(&entity)) {
        drawPolyline(*polyline, toPicture, pen);
    } else if (const auto* point = dynamic_cast<const AcDbPoint*>(&entity)) {
        drawPoint(*point, toPicture, pen);
    } else if (const auto* circle = dynamic_cast<const AcDbCircle*>(&entity)) {
        drawCircle(*circle, toPicture, pen);
    } else if (const auto* arc = dynamic_cast<const AcDbArc*>(&entity)) {
        drawArc(*arc, toPicture, pen);
    }
}

void AcSvgEntityDrawer::drawLine(const AcDbLine& line, const AcGeMatrix3d& toPicture, const Pen& pen) {
    const AcGePoint3d a = toPicture * line.startPoint();
    const AcGePoint3d b = toPicture * line.endPoint();
    startCurve("line", "line", pen).attribute("x1", a.x).attribute("y1", a.y).attribute("x2", b.x).attribute("y2", b.y);
    m_out.end();
}

void AcSvgEntityDrawer::drawPolyline(const AcDbPolyline& polyline, const AcGeMatrix3d& toPicture, const Pen& pen) {
    const unsigned n = polyline.numVerts();
    if (n == 0) return;
    const unsigned segments = polyline.isClosed() ? n : n - 1;
    const double scale = AcSvgPath::lengthScale(toPicture);
    auto vertex = [&](unsigned i) {
        AcGePoint3d p;
        polyline.getPointAt(i % n, p);
        return p;
    };
    // Adds segment i (from vertex i to the next) to the path, as a line or an arc by its bulge.
    auto addSegment = [&](AcSvgPath& path, unsigned i) {
        const AcGePoint3d a = vertex(i);
        const AcGePoint3d b = vertex(i + 1);
        double bulge = 0.0;
        polyline.getBulgeAt(i, bulge);
        if (std::fabs(bulge) < 1e-12 || a.distanceTo(b) < 1e-12) {
            path.lineTo(b);
            return;
        }
        // The bulge is the tangent of a quarter of the included angle, positive counter-clockwise.
        const double sweep = 4.0 * std::atan(bulge);
        const double chord = a.distanceTo(b);
        const double radius = chord / (2.0 * std::sin(std::fabs(sweep) / 2.0));
        const AcGeVector3d along = (b - a) / chord;
        const AcGeVector3d left(-along.y, along.x, 0.0);
        // The centre lies left of the chord for a counter-clockwise bulge under a half turn.
        const AcGePoint3d center = a + (b - a) * 0.5 + left * (radius * std::cos(sweep / 2.0) * (bulge > 0 ? 1.0 : -1.0));
        path.arcTo(center, radius, std::atan2(a.y - center.y, a.x - center.x), sweep);
    };
    auto stroke = [&](const AcSvgPath& path, double width) {
        startCurve("path", "polyline", pen).attribute("d", path.data());
        if (width > 0.0) m_out.attribute("stroke-width", std::max(m_options.lineWidth, width * scale));
        m_out.end();
    };

    const double constant = polyline.constantWidth();
    if (constant >= 0.0 || segments == 0) {
        AcSvgPath path(toPicture);
        path.moveTo(vertex(0));
        for (unsigned i = 0; i < segments; ++i) addSegment(path, i);
        if (polyline.isClosed() && segments > 0) path.close();
        stroke(path, std::max(constant, 0.0));
        return;
    }
    // Widths differ from segment to segment: each segment on its own. A straight one whose width
    // changes along it (an arrow head) is filled as the quadrilateral it covers; others are
    // stroked at their mean width.
    for (unsigned i = 0; i < segments; ++i) {
        double start = 0.0, end = 0.0, bulge = 0.0;
        polyline.getWidthsAt(i, start, end);
        polyline.getBulgeAt(i, bulge);
        const AcGePoint3d a = vertex(i);
        const AcGePoint3d b = vertex(i + 1);
        AcSvgPath path(toPicture);
        if (start != end && std::fabs(bulge) < 1e-12 && a.distanceTo(b) > 1e-12) {
            const AcGeVector3d along = (b - a) / a.distanceTo(b);
            const AcGeVector3d left(-along.y, along.x, 0.0);
            path.moveTo(a + left * (start / 2.0));
            path.lineTo(b + left * (end / 2.0));
            path.lineTo(b - left * (end / 2.0));
            path.lineTo(a - left * (start / 2.0));
            path.close();
            m_out.start("path").attribute("class", "polyline").attribute("d", path.data());
            m_out.attribute("fill", pen.color).attribute("stroke", "none").end();
            continue;
        }
        path.moveTo(a);
        addSegment(path, i);
        stroke(path, (start + end) / 2.0);
    }
}

void AcSvgEntityDrawer::drawPoint(const AcDbPoint& point, const AcGeMatrix3d& toPicture, const Pen& pen) {
    const AcGePoint3d p = toPicture * point.position();
    m_out.start("circle").attribute("class", "point").attribute("cx", p.x).attribute("cy", p.y);
    m_out.attribute("r", kPointMark).attribute("fill", pen.color).attribute("stroke", "none").end();
}

void AcSvgEntityDrawer::drawCircle(const AcDbCircle& circle, const AcGeMatrix3d& toPicture, const Pen& pen) {
    if (AcSvgPath::keepsCircles(toPicture)) {
        const AcGePoint3d c = toPicture * circle.center();
        startCurve("circle", "circle", pen).attribute("cx", c.x).attribute("cy", c.y);
        m_out.attribute("r", circle.radius() * AcSvgPath::lengthScale(toPicture)).end();
        return;
    }
    AcSvgPath path(toPicture);
    path.moveTo(circle.center() + AcGeVector3d(circle.radius(), 0.0, 0.0));
    path.arcTo(circle.center(), circle.radius(), 0.0, 2.0 * M_PI);
    path.close();
    startCurve("path", "circle", pen).attribute("d", path.data()).end();
}

void AcSvgEntityDrawer::drawArc(const AcDbArc& arc, const AcGeMatrix3d& toPicture, const Pen& pen) {
    AcSvgPath path(toPicture);
    path.moveTo(arc.startPoint());
    path.arcTo(arc.center(), arc.radius(), arc.startAngle(), arc.sweep());
    startCurve("path", "arc", pen).attribute("d", path.data()).end();
}

void AcSvgEntityDrawer::drawReference(const AcDbBlockReference& reference, const AcGeMatrix3d& toWorld,
                                      const AcSvgInherited& inherited, int depth) {
    if (depth >= m_options.maxBlockDepth) return;
    AcDbObjectPointer<AcDbBlockTableRecord> block(reference.blockTableRecord(), AcDb::kForRead);
    if (!block) return;
    const AcSvgInherited inner = m_properties.inheritedFrom(reference, inherited);
    const AcGeMatrix3d blockToWorld = toWorld * reference.blockTransform();
    m_out.start("g").attribute("class", "insert").attribute("data-block", acutWcharToUtf8(block->name()));
    for (const AcDbObjectId& id : block->entityIds()) {
        if (id.isErased()) continue;
        AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForRead);
        if (entity) draw(*entity.object(), blockToWorld, inner, depth + 1);
    }
    // Attribute values are placed in the drawing already: they move with the reference itself.
    for (const AcDbObjectId& id : reference.attributeIds()) {
        if (id.isErased()) continue;
        AcDbObjectPointer<AcDbAttribute> attribute(id, AcDb::kForRead);
        if (attribute) draw(*attribute.object(), toWorld, inner, depth + 1);
    }
    for (const auto& attribute : reference.pendingAttributes()) draw(*attribute, toWorld, inner, depth + 1);
    m_out.end();
}
