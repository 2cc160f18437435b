#pragma once
// The OBJECTS section a drawing of this version needs: the root dictionary with the group,
// layout, multiline style and plot style dictionaries, and the model and paper layouts.

#include "host/database/AcDbDatabase.h"
#include "host/dxf/DxfFileHandles.h"
#include "host/dxf/DxfWriter.h"

class DxfObjectsWriter {
public:
    DxfObjectsWriter(const DxfWriter& out, const AcDbDatabase& db, const DxfFileHandles& handles)
        : m_out(out), m_db(db), m_handles(handles) {}
    void write() const;

private:
    // Writes a dictionary's head; entries follow as (3 name, 350 handle) pairs.
    void dictionary(const char* type, DxfFileHandles::Record self, Adesk::UInt32 owner) const;
    void entry(const char* name, DxfFileHandles::Record target) const;
    void layout(DxfFileHandles::Record self, const char* name, int tabOrder, AcDbObjectId block) const;
    void standardMlineStyle() const;

    const DxfWriter& m_out;
    const AcDbDatabase& m_db;
    const DxfFileHandles& m_handles;
};
