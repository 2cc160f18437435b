#include "host/dxf/DxfDatabaseBuilder.h"

#include <charconv>

#include "host/dxf/DxfBlockCycle.h"
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
// Adds a record of that name when the table has none; prepare sets it up first.
template <class Record, class Prepare>
void ensureRecord(AcDbObjectId tableId, const std::wstring& name, Prepare prepare) {
    AcDbObjectId id;
    AcDbSymbolTable* table = nullptr;
    if (acdbOpenObject(table, tableId, AcDb::kForWrite) != Acad::eOk) return;
    if (table->getAt(name.c_str(), id, true) != Acad::eOk) {
        auto* record = new Record;
        record->setName(name.c_str());
        prepare(*record);
        if (table->add(record) == Acad::eOk) record->close(); else delete record;
    }
    table->close();
}

// Opens the owner (a table, a block, a block reference) for write and adds the object to it in
// the owner's way, under the handle the file gives it. An object the owner refuses (a name given
// twice) is deleted. The object's id, null when refused.
template <class Owner, class Object, class Add>
AcDbObjectId addUnderHandle(AcDbDatabase& db, Adesk::UInt32 handle, AcDbObjectId ownerId, Object* object, Add add) {
    Owner* owner = nullptr;
    AcDbObjectId id;
    if (acdbOpenObject(owner, ownerId, AcDb::kForWrite) == Acad::eOk) {
        db.setHandleForNextObject(handle);
        if (add(*owner, id, object) == Acad::eOk) object->close();
        owner->close();
    }
    if (id.isNull()) {
        db.setHandleForNextObject(0);
        delete object;
    }
    return id;
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
    addUnderHandle<AcDbSymbolTable>(m_db, m_object->handle(), tableId, record,
                                    [](AcDbSymbolTable& table, AcDbObjectId& id, AcDbSymbolTableRecord* r) {
                                        return table.add(id, r);
                                    });
}

void DxfDatabaseBuilder::addLayer(const DL_LayerData& d) {
    addRecord(m_db.layerTableId(), m_tables.layer(d, *m_object, m_db));
}

void DxfDatabaseBuilder::addLinetype(const DL_LinetypeData& d) {
    addRecord(m_db.linetypeTableId(), m_tables.linetype(d, *m_object));
}

void DxfDatabaseBuilder::addTextStyle(const DL_StyleData& d) {
    addRecord(m_db.textStyleTableId(), m_tables.textStyle(d));
}

void DxfDatabaseBuilder::objectEnded() {
    const std::string_view type = m_object ? m_object->type() : std::string_view();
    if (type == "APPID") {
        addRecord(m_db.regAppTableId(), m_tables.application(*m_object));
    } else if (type == "BLOCK_RECORD") {
        AcDbBlockTableRecord* record = m_tables.blockRecord(*m_object);
        if (record && m_db.blockId(record->name()).isNull()) addRecord(m_db.blockTableId(), record);
        else delete record;
    } else if (type == "ATTDEF") {
        AcDbAttributeDefinition* definition = m_entities.attributeDefinition(*m_object);
        noteTextStyle(definition->textStyleName());
        place(definition);
    }
}

AcDbObjectId DxfDatabaseBuilder::blockNamed(const std::wstring& name, Adesk::UInt32 handle) {
    const AcDbObjectId id = m_db.blockId(name);
    if (!id.isNull() || name.empty()) return id;
    auto* record = new AcDbBlockTableRecord;
    record->setName(name.c_str());
    return addUnderHandle<AcDbSymbolTable>(m_db, handle, m_db.blockTableId(), record,
                                           [](AcDbSymbolTable& table, AcDbObjectId& added, AcDbSymbolTableRecord* r) {
                                               return table.add(added, r);
                                           });
}

void DxfDatabaseBuilder::addBlock(const DL_BlockData& d) {
    // Without a BLOCK_RECORD table (older files) the block record takes the BLOCK's handle.
    m_block = blockNamed(dxfBlockName(m_codec.decode(d.name)), m_object->handle());
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
    if (owner.isNull()) owner = blockNamed(m_object->integer(67, 0) == 1 ? ACDB_PAPER_SPACE : ACDB_MODEL_SPACE);
    const bool reference = dynamic_cast<AcDbBlockReference*>(entity) != nullptr;
    const AcDbObjectId id = addUnderHandle<AcDbBlockTableRecord>(
        m_db, m_object->handle(), owner, entity,
        [](AcDbBlockTableRecord& block, AcDbObjectId& added, AcDbEntity* e) {
            return block.appendAcDbEntity(added, e);
        });
    if (reference) m_lastReference = id;
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
    if (m_lastReference.isNull()) return;  // an attribute that follows no block reference
    AcDbAttribute* attribute = m_entities.attribute(d, *m_object);
    noteTextStyle(attribute->textStyleName());
    m_entities.readCommon(*attribute, getAttributes(), *m_object);
    addUnderHandle<AcDbBlockReference>(
        m_db, m_object->handle(), m_lastReference, attribute,
        [](AcDbBlockReference& reference, AcDbObjectId& id, AcDbAttribute* a) {
            return reference.appendAttribute(id, a);
        });
}

void DxfDatabaseBuilder::endSequence() { m_lastReference.setNull(); }

void DxfDatabaseBuilder::setObject(const DxfObject* object) {
    // Attributes belong to the block reference right before them, which dxflib may have passed
    // over (a reference without a block name): anything but an attribute ends the sequence.
    if (!object || object->type() != "ATTRIB") m_lastReference.setNull();
    m_object = object;
}

bool DxfDatabaseBuilder::finish(DxfReadError& error) {
    const std::wstring cycle = dxfBlockInsertingItself(m_db);
    if (!cycle.empty()) {
        error.message = "block \"" + acutWcharToUtf8(cycle) + "\" inserts itself";
        return false;
    }
    const auto plain = [](AcDbSymbolTableRecord&) {};
    ensureRecord<AcDbBlockTableRecord>(m_db.blockTableId(), ACDB_MODEL_SPACE, plain);
    ensureRecord<AcDbBlockTableRecord>(m_db.blockTableId(), ACDB_PAPER_SPACE, plain);
    ensureRecord<AcDbLinetypeTableRecord>(m_db.linetypeTableId(), L"ByBlock", plain);
    ensureRecord<AcDbLinetypeTableRecord>(m_db.linetypeTableId(), L"ByLayer", plain);
    ensureRecord<AcDbLinetypeTableRecord>(m_db.linetypeTableId(), L"Continuous",
                                          [](AcDbLinetypeTableRecord& r) { r.setComments(L"Solid line"); });
    AcDbObjectId layer;
    m_db.addLayer(layer, L"0", 7, L"Continuous");
    m_textStyles.emplace(L"STANDARD", L"Standard");
    for (const auto& style : m_textStyles)
        ensureRecord<AcDbTextStyleTableRecord>(m_db.textStyleTableId(), style.second, plain);
    m_db.registerApplication(L"ACAD");
    for (const AcDbObjectId table : {m_db.blockTableId(), m_db.layerTableId(), m_db.linetypeTableId(),
                                     m_db.textStyleTableId(), m_db.regAppTableId()})
        registerApplicationsOf(m_db, table);
    m_db.setHandseed(m_handseed);
    return true;
}
