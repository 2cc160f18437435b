#include "host/dxf/DxfDatabaseCompare.h"

#include <cmath>
#include <sstream>

#include "host/base/AcString.h"
#include "host/entities/AcDbArc.h"
#include "host/entities/AcDbAttributeDefinition.h"
#include "host/entities/AcDbBlockReference.h"
#include "host/entities/AcDbCircle.h"
#include "host/entities/AcDbLine.h"
#include "host/entities/AcDbMText.h"
#include "host/entities/AcDbPoint.h"
#include "host/entities/AcDbPolyline.h"

namespace {
constexpr double kTolerance = 1e-9;

std::string describe(double v) {
    std::ostringstream s;
    s.precision(17);
    s << v;
    return s.str();
}
std::string describe(const std::wstring& v) { return "\"" + acutWcharToUtf8(v) + "\""; }
std::string describe(const AcGePoint3d& p) {
    return "(" + describe(p.x) + ", " + describe(p.y) + ", " + describe(p.z) + ")";
}
std::string describe(const AcGeVector3d& v) { return describe(AcGePoint3d(v.x, v.y, v.z)); }
std::string describe(const AcDbXDataList& xdata) {
    std::string out;
    for (const auto& app : xdata) out += acutWcharToUtf8(app.application) + "[" + std::to_string(app.values.size()) + "] ";
    return out;
}
std::string describe(const std::vector<double>& v) {
    std::string out;
    for (const double d : v) out += describe(d) + " ";
    return out;
}
template <class T>
std::string describe(const T& v) { return std::to_string(v); }

bool same(double a, double b) { return std::fabs(a - b) <= kTolerance * std::max(1.0, std::fabs(a)); }
bool same(const AcGePoint3d& a, const AcGePoint3d& b) { return same(a.x, b.x) && same(a.y, b.y) && same(a.z, b.z); }
bool same(const AcGeVector3d& a, const AcGeVector3d& b) { return same(a.x, b.x) && same(a.y, b.y) && same(a.z, b.z); }
bool same(const AcDbXDataList& a, const AcDbXDataList& b) { return a == b; }
bool same(const std::vector<double>& a, const std::vector<double>& b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (!same(a[i], b[i])) return false;
    return true;
}
template <class T>
bool same(const T& a, const T& b) { return a == b; }

class Comparer {
public:
    std::vector<std::string> differences;

    template <class T>
    void check(const std::string& what, const char* property, const T& expected, const T& actual) {
        if (!same(expected, actual))
            differences.push_back(what + ": " + property + " is " + describe(actual) + ", expected " + describe(expected));
    }

    void records(const std::string& table, AcDbObjectId expectedTable, AcDbObjectId actualTable);
    void entity(const AcDbEntity& e, const AcDbEntity& a);

private:
    void text(const std::string& what, const AcDbText& e, const AcDbText& a);
    void kind(const std::string& what, const AcDbEntity& e, const AcDbEntity& a);
};

void Comparer::records(const std::string& tableName, AcDbObjectId expectedTable, AcDbObjectId actualTable) {
    const auto* table = dynamic_cast<const AcDbSymbolTable*>(AcDbDatabase::peekObject(expectedTable));
    const auto* other = dynamic_cast<const AcDbSymbolTable*>(AcDbDatabase::peekObject(actualTable));
    for (const AcDbObjectId& id : table->recordIds()) {
        if (id.isErased()) continue;
        const auto* e = dynamic_cast<const AcDbSymbolTableRecord*>(AcDbDatabase::peekObject(id));
        const std::string what = tableName + " " + describe(e->name());
        AcDbObjectId actualId;
        other->getAt(e->name().c_str(), actualId);
        const AcDbObject* a = AcDbDatabase::peekObject(actualId);
        if (!a) {
            differences.push_back(what + " is missing");
            continue;
        }
        check(what, "handle", id.handle(), actualId.handle());
        check(what, "extended data", e->xDataList(), a->xDataList());
        if (const auto* el = dynamic_cast<const AcDbLayerTableRecord*>(e)) {
            const auto* al = static_cast<const AcDbLayerTableRecord*>(a);
            check(what, "colour", el->colorIndex(), al->colorIndex());
            check(what, "off", el->isOff(), al->isOff());
            check(what, "frozen", el->isFrozen(), al->isFrozen());
            check(what, "locked", el->isLocked(), al->isLocked());
            check(what, "linetype handle", el->linetypeObjectId().handle(), al->linetypeObjectId().handle());
        } else if (const auto* et = dynamic_cast<const AcDbLinetypeTableRecord*>(e)) {
            const auto* at = static_cast<const AcDbLinetypeTableRecord*>(a);
            check(what, "comments", et->comments(), at->comments());
            check(what, "pattern length", et->patternLength(), at->patternLength());
            check(what, "dashes", et->dashes(), at->dashes());
        } else if (const auto* es = dynamic_cast<const AcDbTextStyleTableRecord*>(e)) {
            const auto* as = static_cast<const AcDbTextStyleTableRecord*>(a);
            check(what, "font file", es->fileName(), as->fileName());
            check(what, "height", es->textSize(), as->textSize());
            check(what, "width factor", es->xScale(), as->xScale());
            check(what, "oblique", es->obliquingAngle(), as->obliquingAngle());
        } else if (const auto* eb = dynamic_cast<const AcDbBlockTableRecord*>(e)) {
            const auto* ab = static_cast<const AcDbBlockTableRecord*>(a);
            check(what, "origin", eb->origin(), ab->origin());
            if (!eb->isLayout()) check(what, "comments", eb->comments(), ab->comments());
            std::vector<Adesk::UInt32> expected;
            std::vector<Adesk::UInt32> actual;
            for (const AcDbObjectId& entity : eb->entityIds())
                if (!entity.isErased()) expected.push_back(entity.handle());
            for (const AcDbObjectId& entity : ab->entityIds())
                if (!entity.isErased()) actual.push_back(entity.handle());
            if (expected != actual) differences.push_back(what + ": the entities differ (by handle and order)");
        }
    }
}

void Comparer::entity(const AcDbEntity& e, const AcDbEntity& a) {
    const std::string what = acutWcharToUtf8(e.isA()) + " " + std::to_string(e.objectId().handle());
    if (std::wstring(e.isA()) != a.isA()) {
        differences.push_back(what + " came back as " + acutWcharToUtf8(a.isA()));
        return;
    }
    check(what, "owner handle", e.ownerId().handle(), a.ownerId().handle());
    check(what, "layer", e.layer(), a.layer());
    check(what, "colour", e.colorIndex(), a.colorIndex());
    check(what, "linetype", acutUpperName(e.linetype()), acutUpperName(a.linetype()));
    check(what, "linetype scale", e.linetypeScale(), a.linetypeScale());
    check(what, "extended data", e.xDataList(), a.xDataList());
    kind(what, e, a);
}

void Comparer::text(const std::string& what, const AcDbText& e, const AcDbText& a) {
    check(what, "position", e.position(), a.position());
    check(what, "alignment point", e.alignmentPoint(), a.alignmentPoint());
    check(what, "text", e.textString(), a.textString());
    check(what, "style", e.textStyleName(), a.textStyleName());
    check(what, "height", e.height(), a.height());
    check(what, "rotation", e.rotation(), a.rotation());
    check(what, "width factor", e.widthFactor(), a.widthFactor());
    check(what, "oblique", e.oblique(), a.oblique());
    check(what, "horizontal mode", static_cast<int>(e.horizontalMode()), static_cast<int>(a.horizontalMode()));
    check(what, "vertical mode", static_cast<int>(e.verticalMode()), static_cast<int>(a.verticalMode()));
    check(what, "mirrored in X", e.isMirroredInX(), a.isMirroredInX());
    check(what, "mirrored in Y", e.isMirroredInY(), a.isMirroredInY());
}

void Comparer::kind(const std::string& what, const AcDbEntity& ee, const AcDbEntity& aa) {
    if (const auto* e = dynamic_cast<const AcDbLine*>(&ee)) {
        const auto* a = static_cast<const AcDbLine*>(&aa);
        check(what, "start", e->startPoint(), a->startPoint());
        check(what, "end", e->endPoint(), a->endPoint());
    } else if (const auto* p = dynamic_cast<const AcDbPoint*>(&ee)) {
        check(what, "position", p->position(), static_cast<const AcDbPoint*>(&aa)->position());
    } else if (const auto* arc = dynamic_cast<const AcDbArc*>(&ee)) {
        const auto* a = static_cast<const AcDbArc*>(&aa);
        check(what, "centre", arc->center(), a->center());
        check(what, "radius", arc->radius(), a->radius());
        check(what, "start angle", arc->startAngle(), a->startAngle());
        check(what, "end angle", arc->endAngle(), a->endAngle());
    } else if (const auto* c = dynamic_cast<const AcDbCircle*>(&ee)) {
        const auto* a = static_cast<const AcDbCircle*>(&aa);
        check(what, "centre", c->center(), a->center());
        check(what, "radius", c->radius(), a->radius());
        check(what, "normal", c->normal(), a->normal());
    } else if (const auto* pl = dynamic_cast<const AcDbPolyline*>(&ee)) {
        const auto* a = static_cast<const AcDbPolyline*>(&aa);
        check(what, "vertices", pl->numVerts(), a->numVerts());
        check(what, "closed", pl->isClosed(), a->isClosed());
        check(what, "elevation", pl->elevation(), a->elevation());
        for (unsigned i = 0; i < std::min(pl->numVerts(), a->numVerts()); ++i) {
            AcGePoint3d pe, pa;
            double be = 0, ba = 0, se = 0, sa = 0, ee2 = 0, ea = 0;
            pl->getPointAt(i, pe), a->getPointAt(i, pa);
            pl->getBulgeAt(i, be), a->getBulgeAt(i, ba);
            pl->getWidthsAt(i, se, ee2), a->getWidthsAt(i, sa, ea);
            const std::string vertex = what + " vertex " + std::to_string(i);
            check(vertex, "point", pe, pa);
            check(vertex, "bulge", be, ba);
            check(vertex, "start width", se, sa);
            check(vertex, "end width", ee2, ea);
        }
    } else if (const auto* d = dynamic_cast<const AcDbAttributeDefinition*>(&ee)) {
        const auto* a = static_cast<const AcDbAttributeDefinition*>(&aa);
        text(what, *d, *a);
        check(what, "tag", d->tag(), a->tag());
        check(what, "prompt", d->prompt(), a->prompt());
        check(what, "invisible", d->isInvisible(), a->isInvisible());
        check(what, "constant", d->isConstant(), a->isConstant());
        check(what, "preset", d->isPreset(), a->isPreset());
    } else if (const auto* at = dynamic_cast<const AcDbAttribute*>(&ee)) {
        const auto* a = static_cast<const AcDbAttribute*>(&aa);
        text(what, *at, *a);
        check(what, "tag", at->tag(), a->tag());
        check(what, "invisible", at->isInvisible(), a->isInvisible());
    } else if (const auto* t = dynamic_cast<const AcDbText*>(&ee)) {
        text(what, *t, *static_cast<const AcDbText*>(&aa));
    } else if (const auto* m = dynamic_cast<const AcDbMText*>(&ee)) {
        const auto* a = static_cast<const AcDbMText*>(&aa);
        check(what, "location", m->location(), a->location());
        check(what, "contents", m->contents(), a->contents());
        check(what, "height", m->textHeight(), a->textHeight());
        check(what, "width", m->width(), a->width());
        check(what, "rotation", m->rotation(), a->rotation());
        check(what, "attachment", static_cast<int>(m->attachment()), static_cast<int>(a->attachment()));
        check(what, "style", m->textStyleName(), a->textStyleName());
    } else if (const auto* r = dynamic_cast<const AcDbBlockReference*>(&ee)) {
        const auto* a = static_cast<const AcDbBlockReference*>(&aa);
        check(what, "block handle", r->blockTableRecord().handle(), a->blockTableRecord().handle());
        check(what, "position", r->position(), a->position());
        check(what, "scale x", r->scaleFactors().sx, a->scaleFactors().sx);
        check(what, "scale y", r->scaleFactors().sy, a->scaleFactors().sy);
        check(what, "scale z", r->scaleFactors().sz, a->scaleFactors().sz);
        check(what, "rotation", r->rotation(), a->rotation());
        std::vector<Adesk::UInt32> expected, actual;
        for (const AcDbObjectId& id : r->attributeIds()) expected.push_back(id.handle());
        for (const AcDbObjectId& id : a->attributeIds()) actual.push_back(id.handle());
        if (expected != actual) differences.push_back(what + ": the attributes differ (by handle and order)");
        for (std::size_t i = 0; i < std::min(expected.size(), actual.size()); ++i)
            entity(*static_cast<const AcDbEntity*>(AcDbDatabase::peekObject(r->attributeIds()[i])),
                   *static_cast<const AcDbEntity*>(AcDbDatabase::peekObject(a->attributeIds()[i])));
    }
}
}  // namespace

std::vector<std::string> compareDatabases(const AcDbDatabase& expected, const AcDbDatabase& actual) {
    Comparer c;
    c.check("database", "units", expected.insunits(), actual.insunits());
    c.records("linetype", expected.linetypeTableId(), actual.linetypeTableId());
    c.records("layer", expected.layerTableId(), actual.layerTableId());
    c.records("text style", expected.textStyleTableId(), actual.textStyleTableId());
    c.records("application", expected.regAppTableId(), actual.regAppTableId());
    c.records("block", expected.blockTableId(), actual.blockTableId());
    const auto* blocks = dynamic_cast<const AcDbBlockTable*>(AcDbDatabase::peekObject(expected.blockTableId()));
    for (const AcDbObjectId& blockId : blocks->recordIds()) {
        const auto* block = dynamic_cast<const AcDbBlockTableRecord*>(AcDbDatabase::peekObject(blockId));
        for (const AcDbObjectId& id : block->entityIds()) {
            if (id.isErased()) continue;
            const auto* e = dynamic_cast<const AcDbEntity*>(AcDbDatabase::peekObject(id));
            const auto* a = dynamic_cast<const AcDbEntity*>(AcDbDatabase::peekObject(actual.idFromHandle(id.handle())));
            if (!a) c.differences.push_back(acutWcharToUtf8(e->isA()) + " " + std::to_string(id.handle()) + " is missing");
            else c.entity(*e, *a);
        }
    }
    return c.differences;
}
