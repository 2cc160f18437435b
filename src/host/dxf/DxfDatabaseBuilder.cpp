#include "host/dxf/DxfDatabaseBuilder.h"

#include <charconv>

#include "host/entities/AcDbArc.h"
#include "host/entities/AcDbAttribute.h"
#include "host/entities/AcDbAttributeDefinition.h"
#include "host/entities/AcDbBlockReference.h"
#include "host/entities/AcDbCircle.h"
#include "host/entities/AcDbLine.h"
#include "host/entities/AcDbMText.h"
#include "host/entities/AcDbPoint.h"
#include "host/entities/AcDbPolyline.h"

namespace {
template <class Table>
AcDbObjectId tableOf(const AcDbDatabase& db);
template <>
AcDbObjectId tableOf<AcDbLinetypeTable>(const AcDbDatabase& db) { return db.linetypeTableId(); }
template <>
AcDbObjectId tableOf<AcDbTextStyleTable>(const AcDbDatabase& db) { return db.textStyleTableId(); }
template <>
AcDbObjectId tableOf<AcDbBlockTable>(const AcDbDatabase& db) { return db.blockTableId(); }

// Adds a record of that name when the table has none; prepare sets it up first.
template <class Table, class Record, class Prepare>
void ensureRecord(AcDbDatabase& db, const std::wstring& name, Prepare prepare) {
    AcDbObjectId id;
    Table* table = nullptr;
    if (acdbOpenObject(table, tableOf<Table>(db), AcDb::kForWrite) != Acad::eOk) return;
    if (table->getAt(name.c_str(), id, true) != Acad::eOk) {
        auto* record = new Record;
        record->setName(name.c_str());
        prepare(*record);
        if (table->add(record) == Acad::eOk) record->close(); else delete record;
    }
    table->close();
}

void registerApplicationsOf(AcDbDatabase& db, AcDbObjectId tableId) {
    const auto* table = dynamic_cast<const AcDbSymbolTable*>(AcDbDatabase::peekObject(tableId));
    if (!table) return;
    for (const AcDbObjectId& id : table->recordIds())
        if (const AcDbObject* record = AcDbDatabase::peekObject(id))
            for (const AcDbXDataApp& app : record->xDataList()) db.registerApplication(app.application);
}
}  // namespace

DxfDatabaseBuilder::DxfDatabaseBuilder(AcDbDatabase& db) : m_db(db) {}

void DxfDatabaseBuilder::setVariableString(const std::string& key, const std::string& value, int) {
    if (key == "$DWGCODEPAGE") {
        if (const int page = DxfTextCodec::codePageFromName(value); page > 0) m_codec = DxfTextCodec(page);
    } else if (key == "$HANDSEED") {
        std::from_chars(value.data(), value.data() + value.size(), m_handseed, 16);
    }
}

void DxfDatabaseBuilder::setVariableInt(const std::string& key, int value, int) {
    if (key == "$INSUNITS") m_db.setInsunits(value);
}

void DxfDatabaseBuilder::addRecord(AcDbObjectId tableId, AcDbSymbolTableRecord* record) {
    if (!record) return;
    m_tables.readXData(*record, *m_object);
    AcDbSymbolTable* table = nullptr;
    AcDbObjectId id;
    if (acdbOpenObject(table, tableId, AcDb::kForWrite) == Acad::eOk) {
        m_db.setHandleForNextObject(m_object->handle());
        if (table->add(id, record) == Acad::eOk) record->close();
        table->close();
    }
    // A record the table refuses (a name given twice) is dropped.
    if (id.isNull()) {
        m_db.setHandleForNextObject(0);
        delete record;
    }
}

void DxfDatabaseBuilder::addLayer(const DL_LayerData& d) { addRecord(m_db.layerTableId(), m_tables.layer(d, *m_object, m_db)); }

void DxfDatabaseBuilder::addLinetype(const DL_LinetypeData& d) {
    addRecord(m_db.linetypeTableId(), m_tables.linetype(d, *m_object));
}

void DxfDatabaseBuilder::addTextStyle(const DL_StyleData& d) {
    addRecord(m_db.textStyleTableId(), m_tables.textStyle(d));
}

void DxfDatabaseBuilder::objectEnded(const DxfObject& object) {
    const std::string_view type = object.type();
    if (type == "APPID") {
        addRecord(m_db.regAppTableId(), m_tables.application(object));
    } else if (type == "BLOCK_RECORD") {
        AcDbBlockTableRecord* record = m_tables.blockRecord(object);
        if (record && m_db.blockId(record->name()).isNull()) addRecord(m_db.blockTableId(), record);
        else delete record;
    } else if (type == "ATTDEF") {
        AcDbAttributeDefinition* definition = m_entities.attributeDefinition(object);
        noteTextStyle(definition->textStyleName());
        place(definition);
    }
}

AcDbObjectId DxfDatabaseBuilder::blockNamed(const std::wstring& name) {
    AcDbObjectId id = m_db.blockId(name);
    if (!id.isNull() || name.empty()) return id;
    AcDbBlockTable* table = nullptr;
    if (m_db.getBlockTable(table, AcDb::kForWrite) != Acad::eOk) return id;
    auto* record = new AcDbBlockTableRecord;
    record->setName(name.c_str());
    if (table->add(id, record) == Acad::eOk) record->close(); else delete record;
    table->close();
    return id;
}

void DxfDatabaseBuilder::addBlock(const DL_BlockData& d) {
    const std::wstring name = dxfBlockName(m_codec.decode(d.name));
    // Without a BLOCK_RECORD table (older files) the block record takes the BLOCK's handle.
    if (m_db.blockId(name).isNull()) m_db.setHandleForNextObject(m_object->handle());
    m_block = blockNamed(name);
    AcDbBlockTableRecord* block = nullptr;
    if (acdbOpenObject(block, m_block, AcDb::kForWrite) != Acad::eOk) return;
    block->setOrigin(AcGePoint3d(d.bpx, d.bpy, d.bpz));
    block->setComments(m_codec.decode(m_object->string(4)).c_str());
    block->close();
}

void DxfDatabaseBuilder::endBlock() { m_block.setNull(); }

void DxfDatabaseBuilder::place(AcDbEntity* entity) {
    m_entities.readCommon(*entity, getAttributes(), *m_object);
    AcDbObjectId owner = m_block;
    if (owner.isNull()) owner = m_object->integer(67, 0) == 1 ? blockNamed(ACDB_PAPER_SPACE) : blockNamed(ACDB_MODEL_SPACE);
    AcDbBlockTableRecord* block = nullptr;
    AcDbObjectId id;
    if (acdbOpenObject(block, owner, AcDb::kForWrite) == Acad::eOk) {
        m_db.setHandleForNextObject(m_object->handle());
        if (block->appendAcDbEntity(id, entity) == Acad::eOk) entity->close();
        block->close();
    }
    if (id.isNull()) {
        m_db.setHandleForNextObject(0);
        delete entity;
    }
    m_lastReference = dynamic_cast<AcDbBlockReference*>(entity) && !id.isNull() ? id : AcDbObjectId();
}

void DxfDatabaseBuilder::addPoint(const DL_PointData& d) { place(m_entities.point(d)); }
void DxfDatabaseBuilder::addLine(const DL_LineData& d) { place(m_entities.line(d)); }
void DxfDatabaseBuilder::addArc(const DL_ArcData& d) { place(m_entities.arc(d, *getExtrusion())); }
void DxfDatabaseBuilder::addCircle(const DL_CircleData& d) { place(m_entities.circle(d, *getExtrusion())); }

void DxfDatabaseBuilder::addPolyline(const DL_PolylineData&) {
    if (m_object->type() == "LWPOLYLINE") place(m_entities.polyline(*m_object));
}

void DxfDatabaseBuilder::addInsert(const DL_InsertData& d) {
    place(m_entities.reference(d, blockNamed(dxfBlockName(m_codec.decode(d.name)))));
}

void DxfDatabaseBuilder::addText(const DL_TextData& d) {
    AcDbText* text = m_entities.text(d, *m_object);
    noteTextStyle(text->textStyleName());
    place(text);
}

void DxfDatabaseBuilder::addMText(const DL_MTextData& d) {
    AcDbMText* mtext = m_entities.mtext(d, *m_object);
    noteTextStyle(mtext->textStyleName());
    place(mtext);
}

void DxfDatabaseBuilder::addAttribute(const DL_AttributeData& d) {
    AcDbBlockReference* reference = nullptr;
    if (m_lastReference.isNull() || acdbOpenObject(reference, m_lastReference, AcDb::kForWrite) != Acad::eOk)
        return;  // an attribute that follows no block reference
    AcDbAttribute* attribute = m_entities.attribute(d, *m_object);
    noteTextStyle(attribute->textStyleName());
    m_entities.readCommon(*attribute, getAttributes(), *m_object);
    AcDbObjectId id;
    m_db.setHandleForNextObject(m_object->handle());
    if (reference->appendAttribute(id, attribute) == Acad::eOk) {
        attribute->close();
    } else {
        m_db.setHandleForNextObject(0);
        delete attribute;
    }
    reference->close();
}

void DxfDatabaseBuilder::endSequence() { m_lastReference.setNull(); }

void DxfDatabaseBuilder::finish() {
    ensureRecord<AcDbBlockTable, AcDbBlockTableRecord>(m_db, ACDB_MODEL_SPACE, [](auto&) {});
    ensureRecord<AcDbBlockTable, AcDbBlockTableRecord>(m_db, ACDB_PAPER_SPACE, [](auto&) {});
    ensureRecord<AcDbLinetypeTable, AcDbLinetypeTableRecord>(m_db, L"ByBlock", [](auto&) {});
    ensureRecord<AcDbLinetypeTable, AcDbLinetypeTableRecord>(m_db, L"ByLayer", [](auto&) {});
    ensureRecord<AcDbLinetypeTable, AcDbLinetypeTableRecord>(m_db, L"Continuous",
                                                             [](auto& r) { r.setComments(L"Solid line"); });
    AcDbObjectId layer;
    m_db.addLayer(layer, L"0", 7, L"Continuous");
    m_textStyles.emplace(L"STANDARD", L"Standard");
    for (const auto& style : m_textStyles)
        ensureRecord<AcDbTextStyleTable, AcDbTextStyleTableRecord>(m_db, style.second, [](auto&) {});
    m_db.registerApplication(L"ACAD");
    for (const AcDbObjectId table : {m_db.blockTableId(), m_db.layerTableId(), m_db.linetypeTableId(),
                                     m_db.textStyleTableId(), m_db.regAppTableId()})
        registerApplicationsOf(m_db, table);
    m_db.setHandseed(m_handseed);
}
