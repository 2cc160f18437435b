#include "host/input/acedGraphics.h"

#include <cstdlib>
#include <vector>

#include "host/database/AcDbObjectId.h"
#include "host/input/AcEdScreen.h"
#include "host/input/acdbAdsName.h"
#include "host/input/acedSelectionSet.h"

namespace {
bool setDisplay(AcDbObjectId id, int mode) {
    AcEdScreen* screen = acedScreen();
    switch (mode) {
        case 1: screen->setHidden(id, false); return true;
        case 2: screen->setHidden(id, true); return true;
        case 3: screen->setHighlighted(id, true); return true;
        case 4: screen->setHighlighted(id, false); return true;
        default: return false;
    }
}

// The entities a name stands for: the members of a set, or the one entity.
bool entitiesOf(const ads_name name, std::vector<AcDbObjectId>& ids) {
    Adesk::Int32 length = 0;
    if (acedSSLength(name, &length) == RTNORM) {
        for (Adesk::Int32 i = 0; i < length; ++i) {
            ads_name member;
            AcDbObjectId id;
            if (acedSSName(name, i, member) == RTNORM && acdbGetObjectId(id, member) == Acad::eOk) ids.push_back(id);
        }
        return true;
    }
    AcDbObjectId id;
    if (acdbGetObjectId(id, name) != Acad::eOk || !id.isValid()) return false;
    ids.push_back(id);
    return true;
}

AcGePoint3d transformed(const ads_real* p, bool is3d, ads_matrix matrix) {
    const double in[3] = {p[0], p[1], is3d ? p[2] : 0.0};
    if (!matrix) return {in[0], in[1], in[2]};
    double out[3];
    for (int r = 0; r < 3; ++r) out[r] = matrix[r][0] * in[0] + matrix[r][1] * in[1] + matrix[r][2] * in[2] + matrix[r][3];
    return {out[0], out[1], out[2]};
}

bool isCurrentViewport(int viewport) { return viewport == 0 || viewport == AcEdScreen::kViewportNumber; }
}  // namespace

int acedRedraw(const ads_name entityOrSet, int mode) {
    if (ads_name_nil(entityOrSet)) {
        acedScreen()->redraw();
        return RTNORM;
    }
    std::vector<AcDbObjectId> ids;
    if (mode < 1 || mode > 4 || !entitiesOf(entityOrSet, ids)) return RTERROR;
    for (AcDbObjectId id : ids) setDisplay(id, mode);
    return RTNORM;
}

int acedGrDraw(const ads_point from, const ads_point to, int color, int highlight) {
    if (!from || !to) return RTERROR;
    acedScreen()->addVector({{from[0], from[1], from[2]}, {to[0], to[1], to[2]}, color, highlight != 0});
    return RTNORM;
}

int acedGrVecs(const resbuf* vectors, ads_matrix matrix) {
    std::vector<AcEdTransientVector> drawn;
    bool hasColor = false;
    int color = 0;
    const ads_real* from = nullptr;
    bool from3d = false;
    for (const resbuf* rb = vectors; rb; rb = rb->rbnext) {
        if (rb->restype == RTSHORT) {
            if (from) return RTREJ;
            color = rb->resval.rint;
            hasColor = true;
        } else if (rb->restype == RTPOINT || rb->restype == RT3DPOINT) {
            if (!hasColor) return RTREJ;
            const bool is3d = rb->restype == RT3DPOINT;
            if (!from) {
                from = rb->resval.rpoint;
                from3d = is3d;
                continue;
            }
            drawn.push_back({transformed(from, from3d, matrix), transformed(rb->resval.rpoint, is3d, matrix),
                             std::abs(color), color < 0});
            from = nullptr;
        } else {
            return RTREJ;
        }
    }
    if (from) return RTREJ;
    for (const AcEdTransientVector& vector : drawn) acedScreen()->addVector(vector);
    return RTNORM;
}

void acedUpdateDisplay() { acedScreen()->updateDisplay(); }

bool acedCoordFromWorldToPixel(int viewport, const ads_point world, CPoint& pixel) {
    if (!isCurrentViewport(viewport) || !world) return false;
    pixel = acedScreen()->worldToPixel({world[0], world[1], world[2]});
    return true;
}

bool acedCoordFromPixelToWorld(int viewport, const CPoint& pixel, ads_point world) {
    if (!isCurrentViewport(viewport) || !world) return false;
    const AcGePoint3d point = acedScreen()->pixelToWorld(pixel);
    world[0] = point.x;
    world[1] = point.y;
    world[2] = point.z;
    return true;
}
