#include "host/input/AcEdScreen.h"

#include <algorithm>
#include <cmath>

#include "host/database/AcDbDatabase.h"
#include "host/entities/AcDbEntity.h"

namespace {
// The default limits of a metric drawing: an A3 sheet in millimetres.
const AcGePoint3d kDefaultCenter(210.0, 148.5, 0.0);
constexpr double kDefaultHeight = 297.0;

AcDbExtents modelSpaceExtents(const AcDbDatabase* database) {
    AcDbExtents extents;
    if (!database) return extents;
    // Read through the records: entities a command holds open for write still count.
    const auto* modelSpace = dynamic_cast<const AcDbBlockTableRecord*>(AcDbDatabase::peekObject(database->modelSpaceId()));
    if (!modelSpace) return extents;
    for (AcDbObjectId id : modelSpace->entityIds()) {
        const auto* entity = dynamic_cast<const AcDbEntity*>(AcDbDatabase::peekObject(id));
        AcDbExtents box;
        if (entity && !id.isErased() && entity->getGeomExtents(box) == Acad::eOk && box.isValid()) extents.addExt(box);
    }
    return extents;
}
}  // namespace

void AcEdScreen::redraw() {
    m_vectors.clear();
    ++m_redraws;
}

void AcEdScreen::setHighlighted(AcDbObjectId id, bool on) {
    if (on) m_highlighted.insert(id);
    else m_highlighted.erase(id);
}

void AcEdScreen::setHidden(AcDbObjectId id, bool on) {
    if (on) m_hidden.insert(id);
    else m_hidden.erase(id);
}

void AcEdScreen::setView(const AcGePoint3d& center, double height) {
    m_view = {center, height > 0.0 ? height : kDefaultHeight};
    m_hasView = true;
}

AcEdScreen::View AcEdScreen::currentView() const {
    if (m_hasView) return m_view;
    const AcDbExtents extents = modelSpaceExtents(acdbHostApplicationServices()->workingDatabase());
    if (!extents.isValid()) return {kDefaultCenter, kDefaultHeight};
    const AcGePoint3d low = extents.minPoint(), high = extents.maxPoint();
    const double fitted = std::max(high.y - low.y, (high.x - low.x) * kHeight / kWidth);
    // A drawing with no size (a single point) is shown at the default scale.
    return {AcGePoint3d((low.x + high.x) / 2, (low.y + high.y) / 2, 0.0), fitted > 0.0 ? fitted : kDefaultHeight};
}

CPoint AcEdScreen::worldToPixel(const AcGePoint3d& point) const {
    const View view = currentView();
    const double scale = kHeight / view.height;
    return {std::lround(kWidth / 2.0 + (point.x - view.center.x) * scale),
            std::lround(kHeight / 2.0 - (point.y - view.center.y) * scale)};
}

AcGePoint3d AcEdScreen::pixelToWorld(const CPoint& pixel) const {
    const View view = currentView();
    const double scale = kHeight / view.height;
    return {view.center.x + (pixel.x - kWidth / 2.0) / scale, view.center.y - (pixel.y - kHeight / 2.0) / scale, 0.0};
}

void AcEdScreen::reset() { *this = AcEdScreen(); }

AcEdScreen* acedScreen() {
    static AcEdScreen screen;
    return &screen;
}
