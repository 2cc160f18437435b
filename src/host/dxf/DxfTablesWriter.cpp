#include "host/dxf/DxfTablesWriter.h"

#include "host/base/AcString.h"
#include "host/dxf/DxfXDataWriter.h"

std::vector<const AcDbSymbolTableRecord*> dxfLiveRecords(AcDbObjectId tableId) {
    std::vector<const AcDbSymbolTableRecord*> records;
    const auto* table = dynamic_cast<const AcDbSymbolTable*>(AcDbDatabase::peekObject(tableId));
    if (!table) return records;
    for (const AcDbObjectId& id : table->recordIds()) {
        if (id.isErased()) continue;
        if (const auto* record = dynamic_cast<const AcDbSymbolTableRecord*>(AcDbDatabase::peekObject(id)))
            records.push_back(record);
    }
    return records;
}

void DxfTablesWriter::write() const {
    m_out.sectionTables();
    viewports();
    linetypes();
    layers();
    textStyles();
    tableHead("VIEW", m_handles.handle(DxfFileHandles::kViewTable), 0);
    m_out.tableEnd();
    tableHead("UCS", m_handles.handle(DxfFileHandles::kUcsTable), 0);
    m_out.tableEnd();
    applications();
    dimensionStyles();
    blockRecords();
    m_out.sectionEnd();
}

void DxfTablesWriter::tableHead(const char* name, Adesk::UInt32 handle, int count) const {
    m_out.dxfString(0, "TABLE");
    m_out.dxfString(2, name);
    m_out.handle(5, handle);
    m_out.handle(330, 0);
    m_out.subClass("AcDbSymbolTable");
    m_out.dxfInt(70, count);
}

void DxfTablesWriter::recordHead(const char* type, const char* subclass, const AcDbSymbolTableRecord& record) const {
    m_out.dxfString(0, type);
    m_out.handle(5, record.objectId().handle());
    m_out.handle(330, record.ownerId().handle());
    m_out.subClass("AcDbSymbolTableRecord");
    m_out.subClass(subclass);
    m_out.text(2, record.name());
}

void DxfTablesWriter::viewports() const {
    tableHead("VPORT", m_handles.handle(DxfFileHandles::kVportTable), 1);
    m_out.dxfString(0, "VPORT");
    m_out.handle(5, m_handles.handle(DxfFileHandles::kActiveVport));
    m_out.handle(330, m_handles.handle(DxfFileHandles::kVportTable));
    m_out.subClass("AcDbSymbolTableRecord");
    m_out.subClass("AcDbViewportTableRecord");
    m_out.dxfString(2, "*Active");
    m_out.dxfInt(70, 0);
    m_out.point2d(10, 0.0, 0.0);  // lower left and upper right of the viewport on screen
    m_out.point2d(11, 1.0, 1.0);
    m_out.point2d(12, 0.0, 0.0);  // view centre
    m_out.point2d(13, 0.0, 0.0);  // snap base
    m_out.point2d(14, 1.0, 1.0);  // snap spacing
    m_out.point2d(15, 1.0, 1.0);  // grid spacing
    m_out.point(16, AcGePoint3d(0.0, 0.0, 1.0));  // view direction
    m_out.point(17, AcGePoint3d::kOrigin);       // view target
    m_out.dxfReal(40, 1000.0);  // view height
    m_out.dxfReal(41, 1.34);    // aspect ratio
    m_out.dxfReal(42, 50.0);    // lens length
    m_out.dxfReal(43, 0.0);
    m_out.dxfReal(44, 0.0);
    m_out.dxfReal(50, 0.0);
    m_out.dxfReal(51, 0.0);
    m_out.dxfInt(71, 0);
    m_out.dxfInt(72, 1000);
    m_out.dxfInt(73, 1);
    m_out.dxfInt(74, 3);
    m_out.dxfInt(75, 0);
    m_out.dxfInt(76, 0);
    m_out.dxfInt(77, 0);
    m_out.dxfInt(78, 0);
    m_out.tableEnd();
}

void DxfTablesWriter::linetypes() const {
    const auto records = dxfLiveRecords(m_db.linetypeTableId());
    tableHead("LTYPE", m_db.linetypeTableId().handle(), static_cast<int>(records.size()));
    for (const auto* r : records) {
        const auto& linetype = static_cast<const AcDbLinetypeTableRecord&>(*r);
        recordHead("LTYPE", "AcDbLinetypeTableRecord", linetype);
        m_out.dxfInt(70, 0);
        m_out.text(3, linetype.comments());
        m_out.dxfInt(72, 65);  // alignment 'A'
        m_out.dxfInt(73, linetype.numDashes());
        m_out.dxfReal(40, linetype.patternLength());
        for (const double dash : linetype.dashes()) {
            m_out.dxfReal(49, dash);
            m_out.dxfInt(74, 0);  // a plain dash, no shape or text
        }
        dxfWriteXData(m_out, linetype.xDataList());
    }
    m_out.tableEnd();
}

void DxfTablesWriter::layers() const {
    const auto records = dxfLiveRecords(m_db.layerTableId());
    tableHead("LAYER", m_db.layerTableId().handle(), static_cast<int>(records.size()));
    for (const auto* r : records) {
        const auto& layer = static_cast<const AcDbLayerTableRecord&>(*r);
        const auto* linetype =
            dynamic_cast<const AcDbLinetypeTableRecord*>(AcDbDatabase::peekObject(layer.linetypeObjectId()));
        recordHead("LAYER", "AcDbLayerTableRecord", layer);
        m_out.dxfInt(70, (layer.isFrozen() ? 1 : 0) | (layer.isLocked() ? 4 : 0));
        // A layer that is off has a negative colour.
        m_out.dxfInt(62, layer.isOff() ? -layer.colorIndex() : layer.colorIndex());
        m_out.text(6, linetype && !linetype->isErased() ? linetype->name() : std::wstring(L"Continuous"));
        m_out.dxfInt(370, -3);  // default lineweight
        m_out.handle(390, m_handles.handle(DxfFileHandles::kNormalPlotStyle));
        dxfWriteXData(m_out, layer.xDataList());
    }
    m_out.tableEnd();
}

void DxfTablesWriter::textStyles() const {
    const auto records = dxfLiveRecords(m_db.textStyleTableId());
    tableHead("STYLE", m_db.textStyleTableId().handle(), static_cast<int>(records.size()));
    for (const auto* r : records) {
        const auto& style = static_cast<const AcDbTextStyleTableRecord&>(*r);
        recordHead("STYLE", "AcDbTextStyleTableRecord", style);
        m_out.dxfInt(70, 0);
        m_out.dxfReal(40, style.textSize());
        m_out.dxfReal(41, style.xScale());
        m_out.angle(50, style.obliquingAngle());
        m_out.dxfInt(71, 0);
        m_out.dxfReal(42, style.textSize() > 0.0 ? style.textSize() : 2.5);  // last height used
        m_out.text(3, style.fileName());
        m_out.dxfString(4, "");
        dxfWriteXData(m_out, style.xDataList());
    }
    m_out.tableEnd();
}

void DxfTablesWriter::applications() const {
    const auto records = dxfLiveRecords(m_db.regAppTableId());
    tableHead("APPID", m_db.regAppTableId().handle(), static_cast<int>(records.size()));
    for (const auto* r : records) {
        recordHead("APPID", "AcDbRegAppTableRecord", *r);
        m_out.dxfInt(70, 0);
        dxfWriteXData(m_out, r->xDataList());
    }
    m_out.tableEnd();
}

void DxfTablesWriter::dimensionStyles() const {
    tableHead("DIMSTYLE", m_handles.handle(DxfFileHandles::kDimStyleTable), 1);
    m_out.subClass("AcDbDimStyleTable");
    m_out.dxfString(0, "DIMSTYLE");
    m_out.handle(105, m_handles.handle(DxfFileHandles::kStandardDimStyle));  // dimension styles use 105
    m_out.handle(330, m_handles.handle(DxfFileHandles::kDimStyleTable));
    m_out.subClass("AcDbSymbolTableRecord");
    m_out.subClass("AcDbDimStyleTableRecord");
    m_out.dxfString(2, "Standard");
    m_out.dxfInt(70, 0);
    // Metric defaults: arrow and text size 2.5, extension line offset 0.625.
    m_out.dxfReal(40, 1.0);
    m_out.dxfReal(41, 2.5);
    m_out.dxfReal(42, 0.625);
    m_out.dxfReal(43, 3.75);
    m_out.dxfReal(44, 1.25);
    m_out.dxfReal(140, 2.5);
    m_out.dxfReal(141, 2.5);
    m_out.dxfReal(147, 0.625);
    m_out.dxfInt(77, 1);
    m_out.dxfInt(78, 8);
    if (const AcDbObjectId standard = m_db.textStyleId(L"Standard"); !standard.isNull() && !standard.isErased())
        m_out.handle(340, standard.handle());
    m_out.tableEnd();
}

void DxfTablesWriter::blockRecords() const {
    const auto records = dxfLiveRecords(m_db.blockTableId());
    tableHead("BLOCK_RECORD", m_db.blockTableId().handle(), static_cast<int>(records.size()));
    for (const auto* r : records) {
        recordHead("BLOCK_RECORD", "AcDbBlockTableRecord", *r);
        // The spaces point to their layouts.
        if (acutNamesEqual(r->name(), ACDB_MODEL_SPACE))
            m_out.handle(340, m_handles.handle(DxfFileHandles::kModelLayout));
        else if (acutNamesEqual(r->name(), ACDB_PAPER_SPACE))
            m_out.handle(340, m_handles.handle(DxfFileHandles::kPaperLayout));
        dxfWriteXData(m_out, r->xDataList());
    }
    m_out.tableEnd();
}
