#include "host/dxf/DxfTestDrawing.h"

#include <cmath>

#include "host/entities/AcDbArc.h"
#include "host/entities/AcDbAttributeDefinition.h"
#include "host/entities/AcDbBlockReference.h"
#include "host/entities/AcDbCircle.h"
#include "host/entities/AcDbLine.h"
#include "host/entities/AcDbMText.h"
#include "host/entities/AcDbPoint.h"
#include "host/entities/AcDbPolyline.h"

namespace {
class DrawingBuilder {
public:
    explicit DrawingBuilder(AcDbDatabase& db) : m_db(db) {}

    // Adds a fully set-up entity with its extended data.
    AcDbObjectId add(AcDbObjectId block, AcDbEntity* entity) {
        AcDbBlockTableRecord* record = nullptr;
        acdbOpenObject(record, block, AcDb::kForWrite);
        for (const AcDbXDataApp& app : dxfTestXData(m_count++)) entity->setXData(app);
        AcDbObjectId id;
        record->appendAcDbEntity(id, entity);
        entity->close();
        record->close();
        return id;
    }

    AcDbObjectId block(const ACHAR* name, const AcGePoint3d& origin) {
        AcDbBlockTable* table = nullptr;
        m_db.getBlockTable(table, AcDb::kForWrite);
        auto* record = new AcDbBlockTableRecord;
        record->setName(name);
        record->setOrigin(origin);
        record->setComments(L"Zasun s prirubnicama");
        AcDbObjectId id;
        table->add(id, record);
        record->close();
        table->close();
        return id;
    }

    int count() const { return m_count; }

private:
    AcDbDatabase& m_db;
    int m_count = 0;
};

void addStyle(AcDbDatabase& db, const ACHAR* name, const ACHAR* font, double size, double xScale, double oblique) {
    AcDbTextStyleTable* table = nullptr;
    db.getTextStyleTable(table, AcDb::kForWrite);
    auto* style = new AcDbTextStyleTableRecord;
    style->setName(name);
    style->setFileName(font);
    style->setTextSize(size);
    style->setXScale(xScale);
    style->setObliquingAngle(oblique);
    table->add(style);
    style->close();
    table->close();
}

AcDbAttributeDefinition* definition(const ACHAR* tag, const ACHAR* prompt, const ACHAR* text, const AcGePoint3d& at) {
    auto* d = new AcDbAttributeDefinition(at, text, tag, prompt);
    d->setHeight(2.0);
    return d;
}
}  // namespace

AcDbXDataList dxfTestXData(int n) {
    return {
        {L"XIMO_SCHEME",
         {AcDbXDataValue::string(L"Čvor š-ž ĐĆ €"), AcDbXDataValue::real(3.25 + n), AcDbXDataValue::int16(-12),
          AcDbXDataValue::int32(123456789 + n), AcDbXDataValue::point(AcGePoint3d(1.5, -2.25, 1e-7 * n)),
          AcDbXDataValue::string(L"{", 1002), AcDbXDataValue::string(L"id-" + std::to_wstring(n)),
          AcDbXDataValue::string(L"}", 1002),
          AcDbXDataValue::real(1e-5 / 3.0)}},
        {L"XIMO_ELEMENT", {AcDbXDataValue::int16(static_cast<Adesk::Int16>(n)), AcDbXDataValue::int32(-2000000000),
                           AcDbXDataValue::string(L"𝄞 beyond 16 bits"), AcDbXDataValue::real(-0.1)}},
    };
}

std::unique_ptr<AcDbDatabase> makeDxfTestDrawing() {
    auto db = std::make_unique<AcDbDatabase>();
    db->setInsunits(4);
    db->loadLineTypeFile(L"DASHDOT");
    db->loadLineTypeFile(L"HIDDEN");
    AcDbObjectId layer;
    db->addLayer(layer, L"SCHEME", 3, L"DASHDOT");
    db->addLayer(layer, L"SCHEME_NP", 1, L"HIDDEN");
    db->addLayer(layer, L"NODES", 200, L"Continuous");
    db->registerApplication(L"XIMO_LAYER");
    {
        AcDbObjectPointer<AcDbLayerTableRecord> record(layer, AcDb::kForWrite);
        record->setIsOff(true);
        record->setIsLocked(true);
        record->setXData(AcDbXDataApp{L"XIMO_LAYER", {AcDbXDataValue::string(L"sloj Š"), AcDbXDataValue::int32(7)}});
    }
    addStyle(*db, L"ISO", L"isocp.shx", 0.0, 0.9, 0.1);
    addStyle(*db, L"Arial", L"arial.ttf", 3.5, 1.0, 0.0);

    DrawingBuilder draw(*db);
    // A nested block and a block with attribute definitions that inserts it.
    const AcDbObjectId nested = draw.block(L"NESTED", AcGePoint3d::kOrigin);
    draw.add(nested, new AcDbPoint(AcGePoint3d(0.5, 0.5, 0.0)));
    const AcDbObjectId valve = draw.block(L"VALVE", AcGePoint3d(5.0, 5.0, 0.0));
    auto* edge = new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(10, 0, 0));
    edge->setLayer(L"SCHEME");
    draw.add(valve, edge);
    draw.add(valve, new AcDbCircle(AcGePoint3d(5, 5, 0), AcGeVector3d::kZAxis, 2.5));
    draw.add(valve, new AcDbBlockReference(AcGePoint3d(1, 1, 0), nested));
    draw.add(valve, definition(L"POS", L"Pozicija", L"1", AcGePoint3d(0, 12, 0)));
    auto* hidden = definition(L"Šifra", L"Šifra elementa", L"Č-100", AcGePoint3d(0, 15, 0));
    hidden->setInvisible(true);
    hidden->setPreset(true);
    hidden->setHorizontalMode(AcDb::kTextCenter);
    hidden->setVerticalMode(AcDb::kTextVertMid);
    hidden->setAlignmentPoint(AcGePoint3d(4, 16, 0));
    hidden->setTextStyleName(L"ISO");
    draw.add(valve, hidden);

    // Model space: every kind, with properties away from their defaults.
    const AcDbObjectId model = db->modelSpaceId();
    auto* line = new AcDbLine(AcGePoint3d(-1e5, 2.5, 0.125), AcGePoint3d(1.0 / 3.0, 1e-9, -7));
    line->setLayer(L"SCHEME");
    line->setColorIndex(5);
    line->setLinetype(L"HIDDEN");
    line->setLinetypeScale(2.5);
    draw.add(model, line);
    auto* polyline = new AcDbPolyline;
    polyline->addVertexAt(0, AcGePoint2d(0, 0), 0.5, 0.25, 0.75);
    polyline->addVertexAt(1, AcGePoint2d(10, 0), -1.0);
    polyline->addVertexAt(2, AcGePoint2d(10, 10), 0.0, 1.0, 1.0);
    polyline->setClosed(true);
    polyline->setElevation(2.0);
    polyline->setLayer(L"NODES");
    draw.add(model, polyline);
    auto* point = new AcDbPoint(AcGePoint3d(3, 4, 5));
    point->setColorIndex(0);
    draw.add(model, point);
    draw.add(model, new AcDbCircle(AcGePoint3d(20, 20, 0), AcGeVector3d::kZAxis, 4.0));
    draw.add(model, new AcDbCircle(AcGePoint3d(-3, 7, 2), AcGeVector3d(0.3, -0.4, 0.866), 1.5));
    auto* arc = new AcDbArc(AcGePoint3d(1, 2, 0), 3.0, 0.25, 5.5);
    arc->setLinetype(L"DASHDOT");
    draw.add(model, arc);
    auto* text = new AcDbText(AcGePoint3d(1, 1, 0), L"Šaht Č-12 ĐŽ €", AcDbObjectId(), 3.5, 0.3);
    text->setTextStyleName(L"ISO");
    text->setWidthFactor(0.8);
    text->setOblique(0.2);
    text->mirrorInX(true);
    text->setHorizontalMode(AcDb::kTextRight);
    text->setVerticalMode(AcDb::kTextTop);
    text->setAlignmentPoint(AcGePoint3d(9, 2, 0));
    draw.add(model, text);
    auto* upsideDown = new AcDbText(AcGePoint3d(0, -5, 0), L"  leading spaces kept", AcDbObjectId(), 2.5);
    upsideDown->mirrorInY(true);
    draw.add(model, upsideDown);
    auto* mtext = new AcDbMText;
    mtext->setLocation(AcGePoint3d(50, 60, 0));
    mtext->setTextHeight(2.0);
    mtext->setWidth(40.0);
    mtext->setRotation(0.7);
    mtext->setAttachment(AcDbMText::kMiddleCenter);
    mtext->setTextStyleName(L"Arial");
    // Longer than one chunk of the file format, with escapes across chunk boundaries.
    std::wstring contents = L"Opis\\Pčvora: ";
    for (int i = 0; i < 60; ++i) contents += L"ĐŽ-" + std::to_wstring(i) + L" ";
    mtext->setContents(contents.c_str());
    draw.add(model, mtext);
    auto* reference = new AcDbBlockReference(AcGePoint3d(100, 50, 0), valve);
    reference->setScaleFactors(AcGeScale3d(2.0, -2.0, 1.0));
    reference->setRotation(1.25);
    reference->setLayer(L"SCHEME");
    for (const auto& [tag, value] : {std::pair{L"POS", L"12"}, {L"ŠIFRA", L"Č-100 ž"}}) {
        auto* attribute = new AcDbAttribute(AcGePoint3d(100, 62, 0), value, tag);
        attribute->setInvisible(tag[0] != L'P');
        for (const AcDbXDataApp& app : dxfTestXData(draw.count() + 100)) attribute->setXData(app);
        reference->appendAttribute(attribute);
    }
    draw.add(model, reference);
    // Paper space, and an erased entity, which files do not keep.
    draw.add(db->blockId(ACDB_PAPER_SPACE), new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(297, 210, 0)));
    AcDbObjectPointer<AcDbLine> erased(draw.add(model, new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 1, 0))),
                                       AcDb::kForWrite);
    erased->erase();
    return db;
}
