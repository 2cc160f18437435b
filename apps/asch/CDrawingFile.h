#pragma once
// Drawing files as the commands use them: loading checks the file first, so that a missing,
// unreadable or wrong file gets a message naming it rather than a parser's complaint.

#include <string>

#include "host/database/AcDbDatabase.h"

namespace XimoGis::Asch {

class CDrawingFile {
public:
    // Loads a DXF file into db (a database made without the default drawing). False with error
    // naming the file and what is wrong with it.
    static bool Load(const std::wstring& fileName, AcDbDatabase& db, std::wstring& error);
    // Saves db as DXF, replacing the file only when the whole drawing was written.
    static bool Save(const AcDbDatabase& db, const std::wstring& fileName, std::wstring& error);
};

}  // namespace XimoGis::Asch
