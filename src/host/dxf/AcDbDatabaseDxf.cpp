// Saving and loading a database as DXF.

#include "host/database/AcDbDatabase.h"
#include "host/dxf/DxfDatabaseReader.h"
#include "host/dxf/DxfDatabaseWriter.h"

Acad::ErrorStatus AcDbDatabase::dxfOut(const ACHAR* fileName, std::wstring* error) const {
    std::wstring problem;
    const Acad::ErrorStatus es = fileName ? DxfDatabaseWriter(*this).write(fileName, problem) : Acad::eInvalidInput;
    if (error) *error = fileName ? problem : L"no file name given";
    return es;
}

Acad::ErrorStatus AcDbDatabase::dxfIn(const ACHAR* fileName, std::wstring* error) {
    if (!fileName) {
        if (error) *error = L"no file name given";
        return Acad::eInvalidInput;
    }
    // The file goes into a database of its own first, so that a failure leaves this one as it was.
    AcDbDatabase loaded(false);
    std::wstring problem;
    const Acad::ErrorStatus es = DxfDatabaseReader().read(fileName, loaded, problem);
    if (error) *error = problem;
    if (es != Acad::eOk) return es;
    swapContents(loaded);
    m_fileName = fileName;
    return Acad::eOk;
}
