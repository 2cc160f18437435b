#pragma once
// The TABLES section: viewports, linetypes, layers, text styles, views, UCSs, applications,
// dimension styles and block records, each record under its database handle (or, for the
// tables the database does not keep, under the file's own).

#include "host/database/AcDbDatabase.h"
#include "host/dxf/DxfFileHandles.h"
#include "host/dxf/DxfWriter.h"

class DxfTablesWriter {
public:
    DxfTablesWriter(const DxfWriter& out, const AcDbDatabase& db, const DxfFileHandles& handles)
        : m_out(out), m_db(db), m_handles(handles) {}
    void write() const;

private:
    void tableHead(const char* name, Adesk::UInt32 handle, int count) const;
    // Writes the groups every record starts with, up to its name.
    void recordHead(const char* type, const char* subclass, const AcDbSymbolTableRecord& record) const;
    void viewports() const;
    void linetypes() const;
    void layers() const;
    void textStyles() const;
    void applications() const;
    void dimensionStyles() const;
    void blockRecords() const;

    const DxfWriter& m_out;
    const AcDbDatabase& m_db;
    const DxfFileHandles& m_handles;
};

// The records of a table that are written: the ones not erased.
std::vector<const AcDbSymbolTableRecord*> dxfLiveRecords(AcDbObjectId table);
