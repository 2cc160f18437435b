#include "CDemoDrawing.h"

#include <cmath>
#include <vector>

#include "host/database/acdbOpenObject.h"
#include "host/entities/AcDbArc.h"
#include "host/entities/AcDbAttributeDefinition.h"
#include "host/entities/AcDbBlockReference.h"
#include "host/entities/AcDbCircle.h"
#include "host/entities/AcDbLine.h"
#include "host/entities/AcDbMText.h"
#include "host/entities/AcDbPoint.h"
#include "host/entities/AcDbPolyline.h"
#include "host/entities/AcDbText.h"

namespace XimoGis::Asch {

namespace {

// Puts the entity into the block, with layer, colour and linetype; the block owns it afterwards.
bool add(AcDbObjectId block, AcDbEntity* entity, const wchar_t* layer = L"0",
         Adesk::UInt16 color = AcDb::kColorByLayer, const wchar_t* linetype = L"ByLayer") {
    entity->setLayer(layer);
    entity->setColorIndex(color);
    entity->setLinetype(linetype);
    AcDbBlockTableRecord* record = nullptr;
    if (acdbOpenObject(record, block, AcDb::kForWrite) != Acad::eOk) {
        delete entity;
        return false;
    }
    const bool added = record->appendAcDbEntity(entity) == Acad::eOk;
    record->close();
    if (added) entity->close(); else delete entity;
    return added;
}

AcDbObjectId newBlock(AcDbDatabase& db, const wchar_t* name) {
    AcDbBlockTable* table = nullptr;
    if (db.getBlockTable(table, AcDb::kForWrite) != Acad::eOk) return {};
    auto* record = new AcDbBlockTableRecord;
    record->setName(name);
    AcDbObjectId id;
    if (table->add(id, record) == Acad::eOk) record->close(); else delete record;
    table->close();
    return id;
}

AcDbPolyline* polyline(const std::vector<AcGePoint2d>& points, bool closed, double width = 0.0) {
    auto* p = new AcDbPolyline;
    for (const AcGePoint2d& point : points) p->addVertexAt(p->numVerts(), point);
    p->setClosed(closed);
    p->setConstantWidth(width);
    return p;
}

AcDbText* text(const AcGePoint3d& at, const wchar_t* content, double height, AcDb::TextHorzMode horizontal = AcDb::kTextLeft,
               AcDb::TextVertMode vertical = AcDb::kTextBase) {
    auto* t = new AcDbText(at, content, AcDbObjectId(), height);
    t->setHorizontalMode(horizontal);
    t->setVerticalMode(vertical);
    t->setAlignmentPoint(at);
    return t;
}

// A flange: a short thick bar, in the colour of whatever inserts it.
AcDbObjectId flangeBlock(AcDbDatabase& db) {
    const AcDbObjectId block = newBlock(db, L"FLANGE");
    add(block, polyline({{0, -4}, {0, 4}}, false, 1.2), L"0", AcDb::kColorByBlock);
    return block;
}

// A gate valve: two triangles tip to tip, a stem, flanges at both ends, and two attributes.
AcDbObjectId valveBlock(AcDbDatabase& db, AcDbObjectId flange) {
    const AcDbObjectId block = newBlock(db, L"VALVE");
    add(block, polyline({{-10, -5}, {0, 0}, {-10, 5}}, true));
    add(block, polyline({{10, -5}, {0, 0}, {10, 5}}, true));
    add(block, new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(0, 8, 0)), L"0", AcDb::kColorByBlock);
    add(block, new AcDbCircle(AcGePoint3d(0, 10, 0), AcGeVector3d::kZAxis, 2), L"0", AcDb::kColorByBlock);
    add(block, new AcDbBlockReference(AcGePoint3d(-10, 0, 0), flange), L"0", AcDb::kColorByBlock);
    add(block, new AcDbBlockReference(AcGePoint3d(10, 0, 0), flange), L"0", 1);
    auto* position = new AcDbAttributeDefinition(AcGePoint3d(0, -9, 0), L"?", L"POS", L"Position");
    position->setHorizontalMode(AcDb::kTextCenter);
    position->setAlignmentPoint(AcGePoint3d(0, -9, 0));
    position->setHeight(3.5);
    add(block, position);
    auto* note = new AcDbAttributeDefinition(AcGePoint3d(0, -14, 0), L"", L"NOTE", L"Note");
    note->setInvisible(true);
    add(block, note);
    return block;
}

// Inserts the valve with its two attributes filled in and the demo's extended data.
bool insertValve(AcDbDatabase& db, AcDbObjectId valve, const AcGePoint3d& at, double rotation,
                 const AcGeScale3d& scale, const wchar_t* position, const wchar_t* layer, Adesk::UInt16 color) {
    auto* reference = new AcDbBlockReference(at, valve);
    reference->setRotation(rotation);
    reference->setScaleFactors(scale);
    AcDbObjectPointer<AcDbBlockTableRecord> block(valve, AcDb::kForRead);
    if (!block) return false;
    for (const AcDbObjectId& id : block->entityIds()) {
        AcDbObjectPointer<AcDbAttributeDefinition> definition(id, AcDb::kForRead);
        if (!definition) continue;
        auto* attribute = new AcDbAttribute;
        attribute->setAttributeFromBlock(definition.object(), reference->blockTransform());
        if (definition->tag() == L"POS") attribute->setTextString(position);
        else attribute->setTextString(L"checked");
        reference->appendAttribute(attribute);
    }
    block.close();
    AcDbXDataApp data{CDemoDrawing::kApplication, {AcDbXDataValue::string(position), AcDbXDataValue::int16(1)}};
    reference->setXData(data);
    return add(db.modelSpaceId(), reference, layer, color);
}

void addLayers(AcDbDatabase& db) {
    AcDbObjectId id;
    db.addLayer(id, L"FRAME", 7);
    db.addLayer(id, L"AXES", 1, L"CENTER");
    db.addLayer(id, L"HIDDEN", 8, L"HIDDEN");
    db.addLayer(id, L"PIPES", 5);
    db.addLayer(id, L"TEXT", 7);
    db.addLayer(id, L"ELEMENTS", 3);
}

void addTextStyle(AcDbDatabase& db) {
    AcDbTextStyleTable* table = nullptr;
    if (db.getTextStyleTable(table, AcDb::kForWrite) != Acad::eOk) return;
    auto* style = new AcDbTextStyleTableRecord;
    style->setName(L"NARROW");
    style->setFileName(L"arial.ttf");
    style->setXScale(0.8);
    if (table->add(style) == Acad::eOk) style->close(); else delete style;
    table->close();
}

}  // namespace

bool CDemoDrawing::Build(AcDbDatabase& db) {
    addLayers(db);
    addTextStyle(db);
    if (db.registerApplication(kApplication) != Acad::eOk) return false;
    const AcDbObjectId model = db.modelSpaceId();
    bool ok = true;

    // An A4 sheet: outer edge and a frame with a binding margin.
    ok &= add(model, polyline({{0, 0}, {297, 0}, {297, 210}, {0, 210}}, true), L"FRAME");
    ok &= add(model, polyline({{20, 5}, {292, 5}, {292, 205}, {20, 205}}, true, 0.7), L"FRAME");

    // Axes and a hidden outline.
    ok &= add(model, new AcDbLine(AcGePoint3d(30, 120, 0), AcGePoint3d(200, 120, 0)), L"AXES");
    ok &= add(model, new AcDbLine(AcGePoint3d(115, 60, 0), AcGePoint3d(115, 190, 0)), L"AXES");
    ok &= add(model, new AcDbCircle(AcGePoint3d(115, 120, 0), AcGeVector3d::kZAxis, 45), L"HIDDEN");

    // A pipe with two bends (bulges), and an arrow made of a tapering segment.
    auto* pipe = new AcDbPolyline;
    pipe->addVertexAt(0, AcGePoint2d(40, 80));
    pipe->addVertexAt(1, AcGePoint2d(70, 80), 0.41421356);  // a quarter turn to the left
    pipe->addVertexAt(2, AcGePoint2d(80, 90));
    pipe->addVertexAt(3, AcGePoint2d(80, 100), -0.41421356);  // and back to the right
    pipe->addVertexAt(4, AcGePoint2d(90, 110));
    pipe->addVertexAt(5, AcGePoint2d(100, 110));
    pipe->setConstantWidth(1.0);
    ok &= add(model, pipe, L"PIPES");
    auto* arrow = new AcDbPolyline;
    arrow->addVertexAt(0, AcGePoint2d(140, 40), 0.0, 0.0, 0.0);
    arrow->addVertexAt(1, AcGePoint2d(170, 40), 0.0, 3.0, 0.0);
    arrow->addVertexAt(2, AcGePoint2d(178, 40));
    ok &= add(model, arrow, L"PIPES", 1);

    // Points, an arc (counter-clockwise from 0 to 135 degrees) with its centre marked.
    ok &= add(model, new AcDbArc(AcGePoint3d(60, 160, 0), 15, 0, 0.75 * M_PI), L"PIPES", 30);
    ok &= add(model, new AcDbPoint(AcGePoint3d(60, 160, 0)), L"PIPES", 1);
    ok &= add(model, new AcDbPoint(AcGePoint3d(100, 110, 0)), L"PIPES", 1);

    // Valves: plain, rotated a quarter turn, scaled 1.5, mirrored in X.
    const AcDbObjectId valve = valveBlock(db, flangeBlock(db));
    ok &= insertValve(db, valve, AcGePoint3d(115, 120, 0), 0.0, AcGeScale3d(1.0), L"1", L"ELEMENTS", AcDb::kColorByLayer);
    ok &= insertValve(db, valve, AcGePoint3d(115, 165, 0), M_PI / 2, AcGeScale3d(1.0), L"2", L"ELEMENTS", 5);
    ok &= insertValve(db, valve, AcGePoint3d(175, 120, 0), 0.0, AcGeScale3d(1.5), L"3", L"ELEMENTS", 6);
    ok &= insertValve(db, valve, AcGePoint3d(60, 120, 0), 0.0, AcGeScale3d(-1.0, 1.0, 1.0), L"4", L"ELEMENTS", 1);

    // Texts: alignments, rotation, a style with a width factor, control codes, multi-line text.
    ok &= add(model, text(AcGePoint3d(25, 195, 0), L"Assembly scheme demo", 5.0), L"TEXT");
    ok &= add(model, text(AcGePoint3d(115, 60, 0), L"DN 100 %%c110", 3.0, AcDb::kTextCenter, AcDb::kTextTop), L"TEXT", 5);
    ok &= add(model, text(AcGePoint3d(288, 150, 0), L"right aligned", 2.5, AcDb::kTextRight), L"TEXT");
    auto* rotated = text(AcGePoint3d(210, 60, 0), L"rotated 90%%d", 3.0);
    rotated->setRotation(M_PI / 2);
    ok &= add(model, rotated, L"TEXT", 3);
    auto* narrow = text(AcGePoint3d(140, 30, 0), L"narrow style 0.8", 3.0);
    narrow->setTextStyleName(L"NARROW");
    ok &= add(model, narrow, L"TEXT");
    auto* notes = new AcDbMText;
    notes->setLocation(AcGePoint3d(288, 60, 0));
    notes->setTextHeight(3.0);
    notes->setAttachment(AcDbMText::kBottomRight);
    notes->setContents(L"Notes:\\P1. Valves are gate valves.\\P2. Flanges {\\fArial|b1;PN 10}.");
    ok &= add(model, notes, L"TEXT");

    // A title block.
    ok &= add(model, polyline({{212, 5}, {292, 5}, {292, 25}, {212, 25}}, true), L"FRAME");
    ok &= add(model, new AcDbLine(AcGePoint3d(212, 15, 0), AcGePoint3d(292, 15, 0)), L"FRAME");
    ok &= add(model, text(AcGePoint3d(252, 20, 0), L"XIMO assembly schemes", 3.0, AcDb::kTextCenter, AcDb::kTextVertMid), L"TEXT");
    ok &= add(model, text(AcGePoint3d(252, 10, 0), L"Sheet 1 of 1", 2.5, AcDb::kTextMid), L"TEXT");
    return ok;
}

}  // namespace XimoGis::Asch
