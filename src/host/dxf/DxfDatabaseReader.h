#pragma once
// Loads an ASCII DXF file into a database. The file is read whole into memory and split into
// objects; each object is checked (groups, structure) before dxflib interprets it, so dxflib's
// lenient parser never sees a malformed file. A file that fails any check loads nothing.

#include <string>

#include "host/database/AcDbDatabase.h"
#include "host/dxf/DxfReadError.h"

class DxfDatabaseReader {
public:
    // db is a fresh database without default records (AcDbDatabase(false)); on failure it may
    // hold part of the file and is to be thrown away. error names the file and the line.
    Acad::ErrorStatus read(const std::wstring& fileName, AcDbDatabase& db, std::wstring& error) const;

private:
    bool parse(std::string_view data, AcDbDatabase& db, DxfReadError& error) const;
};
