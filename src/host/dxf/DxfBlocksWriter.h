#pragma once
// The BLOCKS section (every block record between BLOCK and ENDBLK, with the entities of named
// blocks) and the ENTITIES section (model space, then paper space).

#include "host/database/AcDbDatabase.h"
#include "host/dxf/DxfFileHandles.h"
#include "host/dxf/DxfWriter.h"

class DxfBlocksWriter {
public:
    DxfBlocksWriter(const DxfWriter& out, const AcDbDatabase& db, const DxfFileHandles& handles)
        : m_out(out), m_db(db), m_handles(handles) {}
    void writeBlocks() const;
    void writeEntities() const;

private:
    void blockBegin(const AcDbBlockTableRecord& block, bool paperSpace) const;
    void blockEnd(const AcDbBlockTableRecord& block, bool paperSpace) const;
    void entitiesOf(const AcDbBlockTableRecord& block, bool paperSpace) const;

    const DxfWriter& m_out;
    const AcDbDatabase& m_db;
    const DxfFileHandles& m_handles;
};
