#pragma once
// Saves a database as an R2000 DXF file. The file is written to a temporary file beside the
// target, checked to be complete, flushed to disk and renamed over the target: a save that fails
// at any point leaves the old file as it was.

#include <string>

#include "host/database/AcDbDatabase.h"

class DxfDatabaseWriter {
public:
    explicit DxfDatabaseWriter(const AcDbDatabase& db) : m_db(db) {}
    // On failure error names the file and what went wrong.
    Acad::ErrorStatus write(const std::wstring& fileName, std::wstring& error) const;

private:
    // Writes every section into path; false when the written file is not complete.
    bool writeSections(const std::string& path, std::string& problem) const;

    const AcDbDatabase& m_db;
};
