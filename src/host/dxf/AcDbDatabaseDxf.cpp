// Saving and loading a database as DXF. Nothing thrown below (an allocation failing on a huge
// file) gets past these two functions.

#include <exception>

#include "host/base/AcString.h"
#include "host/database/AcDbDatabase.h"
#include "host/dxf/DxfDatabaseReader.h"
#include "host/dxf/DxfDatabaseWriter.h"

namespace {
Acad::ErrorStatus refuse(std::wstring* error, const std::wstring& message, Acad::ErrorStatus status) {
    if (error) *error = message;
    return status;
}

std::wstring failure(const ACHAR* fileName, const std::exception& e) {
    return std::wstring(fileName) + L": " + acutUtf8ToWchar(e.what());
}
}  // namespace

Acad::ErrorStatus AcDbDatabase::dxfOut(const ACHAR* fileName, std::wstring* error) const {
    if (!fileName) return refuse(error, L"no file name given", Acad::eInvalidInput);
    std::wstring problem;
    Acad::ErrorStatus es = Acad::eOk;
    try {
        es = DxfDatabaseWriter(*this).write(fileName, problem);
    } catch (const std::exception& e) {
        return refuse(error, failure(fileName, e), Acad::eFilerError);
    }
    if (error) *error = problem;
    return es;
}

Acad::ErrorStatus AcDbDatabase::dxfIn(const ACHAR* fileName, std::wstring* error) {
    if (!fileName) return refuse(error, L"no file name given", Acad::eInvalidInput);
    // The file goes into a database of its own first, so that a failure leaves this one as it was.
    std::wstring problem;
    try {
        AcDbDatabase loaded(false);
        const Acad::ErrorStatus es = DxfDatabaseReader().read(fileName, loaded, problem);
        if (es != Acad::eOk) return refuse(error, problem, es);
        swapContents(loaded);
    } catch (const std::exception& e) {
        return refuse(error, failure(fileName, e), Acad::eFilerError);
    }
    m_fileName = fileName;
    if (error) error->clear();
    return Acad::eOk;
}
