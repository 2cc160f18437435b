// Saving a database as DXF.

#include "host/database/AcDbDatabase.h"
#include "host/dxf/DxfDatabaseWriter.h"

Acad::ErrorStatus AcDbDatabase::dxfOut(const ACHAR* fileName, std::wstring* error) const {
    std::wstring problem;
    const Acad::ErrorStatus es = fileName ? DxfDatabaseWriter(*this).write(fileName, problem) : Acad::eInvalidInput;
    if (error) *error = fileName ? problem : L"no file name given";
    return es;
}

