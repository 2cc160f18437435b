#include "host/svg/AcSvgRenderer.h"

#include <algorithm>

#include "host/base/AcAtomicFile.h"
#include "host/base/AcString.h"
#include "host/database/acdbOpenObject.h"
#include "host/entities/AcDbEntity.h"
#include "host/svg/AcSvgEntityDrawer.h"
#include "host/svg/AcSvgProperties.h"
#include "host/svg/AcSvgView.h"
#include "host/svg/AcSvgWriter.h"

namespace {
bool overlaps(const AcDbExtents& a, const AcDbExtents& b) {
    return a.minPoint().x <= b.maxPoint().x && b.minPoint().x <= a.maxPoint().x && a.minPoint().y <= b.maxPoint().y &&
           b.minPoint().y <= a.maxPoint().y;
}

// Calls f with every entity of model space that opens for read, in drawing order.
template <class F>
bool forEachModelSpaceEntity(const AcDbDatabase& db, F&& f) {
    AcDbObjectPointer<AcDbBlockTableRecord> modelSpace(db.modelSpaceId(), AcDb::kForRead);
    if (!modelSpace) return false;
    for (const AcDbObjectId& id : modelSpace->entityIds()) {
        if (id.isErased()) continue;
        AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForRead);
        if (entity) f(*entity.object());
    }
    return true;
}
}  // namespace

AcSvgRenderer::AcSvgRenderer(const AcDbDatabase& db, const AcSvgOptions& options) : m_db(db), m_options(options) {}

AcDbExtents AcSvgRenderer::drawingExtents() const {
    const AcSvgProperties properties(m_db);
    AcDbExtents extents;
    forEachModelSpaceEntity(m_db, [&](const AcDbEntity& entity) {
        AcDbExtents e;
        if (properties.isVisible(entity, AcSvgInherited()) && entity.getGeomExtents(e) == Acad::eOk) extents.addExt(e);
    });
    return extents;
}

AcDbExtents AcSvgRenderer::shownWindow() const {
    if (m_options.window.isValid()) return m_options.window;
    AcDbExtents extents = drawingExtents();
    if (!extents.isValid()) return AcDbExtents(AcGePoint3d(0, 0, 0), AcGePoint3d(100, 100, 0));
    // A line along an axis, or a lone point, still gets a window some size across.
    const double w = extents.maxPoint().x - extents.minPoint().x;
    const double h = extents.maxPoint().y - extents.minPoint().y;
    const double least = std::max({w, h, 1.0}) * 0.05;
    const AcGeVector3d grow(w < least ? (least - w) / 2.0 : 0.0, h < least ? (least - h) / 2.0 : 0.0, 0.0);
    return AcDbExtents(extents.minPoint() - grow, extents.maxPoint() + grow);
}

Acad::ErrorStatus AcSvgRenderer::render(std::string& svg, std::wstring* error) const {
    svg.clear();
    const AcDbExtents window = shownWindow();
    if (!(window.maxPoint().x - window.minPoint().x > 0.0) || !(window.maxPoint().y - window.minPoint().y > 0.0)) {
        if (error) *error = L"the window to show is empty: it needs a width and a height";
        return Acad::eInvalidInput;
    }
    if (m_db.modelSpaceId().isNull()) {
        if (error) *error = L"the drawing has no model space";
        return Acad::eNotInDatabase;
    }
    const AcSvgView view(window, m_options);
    const AcSvgProperties properties(m_db);
    AcSvgWriter out;
    const std::string size = acsvgNumber(view.width()) + ' ' + acsvgNumber(view.height());
    out.start("svg")
        .attribute("xmlns", "http://www.w3.org/2000/svg")
        .attribute("version", "1.1")
        .attribute("width", view.width())
        .attribute("height", view.height())
        .attribute("viewBox", "0 0 " + size);
    out.start("rect").attribute("class", "paper").attribute("x", 0.0).attribute("y", 0.0);
    out.attribute("width", view.width()).attribute("height", view.height()).attribute("fill", "#ffffff").end();
    const bool clipped = m_options.window.isValid();
    if (clipped) {
        out.start("defs").start("clipPath").attribute("id", "window").start("rect");
        out.attribute("x", view.windowLeft()).attribute("y", view.windowTop());
        out.attribute("width", view.windowWidth()).attribute("height", view.windowHeight()).end().end().end();
    }
    out.start("g")
        .attribute("class", "model")
        .attribute("fill", "none")
        .attribute("stroke-width", m_options.lineWidth)
        .attribute("stroke-linecap", "round")
        .attribute("stroke-linejoin", "round");
    if (clipped) out.attribute("clip-path", "url(#window)");

    AcSvgEntityDrawer drawer(out, view, m_options, properties);
    forEachModelSpaceEntity(m_db, [&](const AcDbEntity& entity) {
        AcDbExtents e;
        // Entities wholly outside a window need not be written at all.
        if (clipped && entity.getGeomExtents(e) == Acad::eOk && e.isValid() && !overlaps(e, window)) return;
        drawer.draw(entity, AcGeMatrix3d::kIdentity, AcSvgInherited());
    });
    svg = out.finish();
    return Acad::eOk;
}

Acad::ErrorStatus AcSvgRenderer::writeFile(const std::wstring& fileName, std::wstring* error) const {
    std::string svg;
    std::wstring why;
    const Acad::ErrorStatus es = render(svg, &why);
    if (es != Acad::eOk) {
        if (error) *error = L"cannot draw '" + fileName + L"': " + why;
        return es;
    }
    return acutWriteFileAtomically(fileName, svg, error);
}

Acad::ErrorStatus acdbRenderSvg(const AcDbDatabase& db, const AcSvgOptions& options, std::string& svg,
                                std::wstring* error) {
    return AcSvgRenderer(db, options).render(svg, error);
}

Acad::ErrorStatus acdbWriteSvgFile(const AcDbDatabase& db, const AcSvgOptions& options, const ACHAR* fileName,
                                   std::wstring* error) {
    if (!fileName) return Acad::eInvalidInput;
    return AcSvgRenderer(db, options).writeFile(fileName, error);
}
