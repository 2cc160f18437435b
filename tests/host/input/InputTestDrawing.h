#pragma once
// Entities for the input tests to select, name and drag.

#include "host/database/AcDbDatabase.h"
#include "host/database/acdbOpenObject.h"
#include "host/entities/AcDbLine.h"

// A line appended to the model space of db.
inline AcDbObjectId addTestLine(AcDbDatabase& db, const AcGePoint3d& from = {}, const AcGePoint3d& to = {0, 1, 0}) {
    AcDbObjectPointer<AcDbBlockTableRecord> space(db.modelSpaceId(), AcDb::kForWrite);
    AcDbObjectId id;
    auto* line = new AcDbLine(from, to);
    if (space->appendAcDbEntity(id, line) == Acad::eOk) line->close();
    else delete line;
    return id;
}
