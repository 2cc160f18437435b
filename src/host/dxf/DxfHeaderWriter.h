#pragma once
// The HEADER section (version, code page, units, handle seed and the current settings a new
// drawing has) and the CLASSES section naming the classes of the OBJECTS section.

#include "host/database/AcDbDatabase.h"
#include "host/dxf/DxfFileHandles.h"
#include "host/dxf/DxfWriter.h"

class DxfHeaderWriter {
public:
    DxfHeaderWriter(const DxfWriter& out, const AcDbDatabase& db, const DxfFileHandles& handles)
        : m_out(out), m_db(db), m_handles(handles) {}
    void write() const;

private:
    void variable(const char* name) const { m_out.dxfString(9, name); }
    void classes() const;

    const DxfWriter& m_out;
    const AcDbDatabase& m_db;
    const DxfFileHandles& m_handles;
};
