#pragma once
// Makes symbol table records from what dxflib reports of them, with the rest taken from the
// record's groups: a layer's colour (negative when off) and linetype, a linetype's dashes
// (dxflib reports them before the linetype they belong to), text style angles in degrees.
// Applications and block records, which dxflib does not report, come from the groups alone.

#include <dl_entities.h>

#include "host/database/AcDbBlockTable.h"
#include "host/database/AcDbLayerTable.h"
#include "host/database/AcDbLinetypeTable.h"
#include "host/database/AcDbRegAppTable.h"
#include "host/database/AcDbTextStyleTable.h"
#include "host/dxf/DxfObject.h"
#include "host/dxf/DxfTextCodec.h"

class AcDbDatabase;

class DxfTableReader {
public:
    explicit DxfTableReader(const DxfTextCodec& codec) : m_codec(codec) {}

    // Null when the record has no name. The layer's linetype is looked up in db.
    AcDbLayerTableRecord* layer(const DL_LayerData& d, const DxfObject& object, const AcDbDatabase& db) const;
    AcDbLinetypeTableRecord* linetype(const DL_LinetypeData& d, const DxfObject& object) const;
    AcDbTextStyleTableRecord* textStyle(const DL_StyleData& d) const;
    AcDbRegAppTableRecord* application(const DxfObject& object) const;
    AcDbBlockTableRecord* blockRecord(const DxfObject& object) const;

    // The record's extended data, set before it goes into its table.
    void readXData(AcDbObject& record, const DxfObject& object) const;

private:
    const DxfTextCodec& m_codec;
};

// The database's name for a block: older files call the spaces $MODEL_SPACE and $PAPER_SPACE.
std::wstring dxfBlockName(const std::wstring& name);
