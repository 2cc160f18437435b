#pragma once

#include "host/database/AcDbSymbolTable.h"

// An application name under which objects may carry extended data.
class AcDbRegAppTableRecord : public AcDbSymbolTableRecord {
public:
    AcDbRegAppTableRecord() = default;
    const ACHAR* isA() const override { return L"AcDbRegAppTableRecord"; }
    AcDbObject* clone() const override { return new AcDbRegAppTableRecord(*this); }
};

class AcDbRegAppTable : public AcDbSymbolTableOf<AcDbRegAppTableRecord> {
public:
    const ACHAR* isA() const override { return L"AcDbRegAppTable"; }
};
