#include "host/dxf/DxfBlocksWriter.h"

#include "host/base/AcString.h"
#include "host/dxf/DxfEntityWriter.h"
#include "host/dxf/DxfTablesWriter.h"

namespace {
bool isPaperSpace(const AcDbBlockTableRecord& block) { return acutNamesEqual(block.name(), ACDB_PAPER_SPACE); }
}  // namespace

void DxfBlocksWriter::writeBlocks() const {
    m_out.sectionBlocks();
    for (const auto* record : dxfLiveRecords(m_db.blockTableId())) {
        const auto& block = static_cast<const AcDbBlockTableRecord&>(*record);
        const bool paper = isPaperSpace(block);
        blockBegin(block, paper);
        if (!block.isLayout()) entitiesOf(block, false);
        blockEnd(block, paper);
    }
    m_out.sectionEnd();
}

void DxfBlocksWriter::writeEntities() const {
    m_out.sectionEntities();
    for (const AcDbObjectId& id : {m_db.modelSpaceId(), m_db.blockId(ACDB_PAPER_SPACE)}) {
        if (const auto* block = dynamic_cast<const AcDbBlockTableRecord*>(AcDbDatabase::peekObject(id)))
            entitiesOf(*block, isPaperSpace(*block));
    }
    m_out.sectionEnd();
}

void DxfBlocksWriter::blockBegin(const AcDbBlockTableRecord& block, bool paperSpace) const {
    m_out.dxfString(0, "BLOCK");
    m_out.handle(5, m_handles.blockBegin(block.objectId()));
    m_out.handle(330, block.objectId().handle());
    m_out.subClass("AcDbEntity");
    if (paperSpace) m_out.dxfInt(67, 1);
    m_out.dxfString(8, "0");
    m_out.subClass("AcDbBlockBegin");
    m_out.text(2, block.name());
    m_out.dxfInt(70, (block.isAnonymous() ? 1 : 0) | (block.hasAttributeDefinitions() ? 2 : 0));
    m_out.point(10, block.origin());
    m_out.text(3, block.name());
    m_out.dxfString(1, "");  // not an external reference
    if (!block.comments().empty()) m_out.text(4, block.comments());
}

void DxfBlocksWriter::blockEnd(const AcDbBlockTableRecord& block, bool paperSpace) const {
    m_out.dxfString(0, "ENDBLK");
    m_out.handle(5, m_handles.blockEnd(block.objectId()));
    m_out.handle(330, block.objectId().handle());
    m_out.subClass("AcDbEntity");
    if (paperSpace) m_out.dxfInt(67, 1);
    m_out.dxfString(8, "0");
    m_out.subClass("AcDbBlockEnd");
}

void DxfBlocksWriter::entitiesOf(const AcDbBlockTableRecord& block, bool paperSpace) const {
    const DxfEntityWriter writer(m_out, m_handles);
    const Adesk::UInt32 owner = block.objectId().handle();
    for (const AcDbObjectId& id : block.entityIds()) {
        if (id.isErased()) continue;
        if (const auto* entity = dynamic_cast<const AcDbEntity*>(AcDbDatabase::peekObject(id)))
            writer.write(*entity, owner, paperSpace);
    }
}
