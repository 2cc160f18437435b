#include "host/dxf/DxfFileHandles.h"

#include "host/entities/AcDbBlockReference.h"

bool dxfHasAttributes(const AcDbObjectId& reference) {
    const AcDbObject* object = AcDbDatabase::peekObject(reference);
    if (!object || std::wstring_view(object->isA()) != L"AcDbBlockReference") return false;
    for (const AcDbObjectId& id : static_cast<const AcDbBlockReference*>(object)->attributeIds())
        if (!id.isErased()) return true;
    return false;
}

DxfFileHandles::DxfFileHandles(const AcDbDatabase& db) : m_next(db.handseed()) {
    for (auto& handle : m_fixed) handle = m_next++;
    const auto* blocks = dynamic_cast<const AcDbBlockTable*>(AcDbDatabase::peekObject(db.blockTableId()));
    if (!blocks) return;
    for (const AcDbObjectId& blockId : blocks->recordIds()) {
        if (blockId.isErased()) continue;
        m_blocks[blockId] = m_next;
        m_next += 2;
        const auto* block = dynamic_cast<const AcDbBlockTableRecord*>(AcDbDatabase::peekObject(blockId));
        for (const AcDbObjectId& entity : block->entityIds())
            if (!entity.isErased() && dxfHasAttributes(entity)) m_sequenceEnds[entity] = m_next++;
    }
}
