#pragma once
// Receives what dxflib reads from a file and builds the database from it: table records and
// entities under the handles the file gives them, entities in the block being read or in model
// or paper space, attributes on the block reference before them.
//
// dxflib reports an object when the next one starts; the reader hands the builder that object's
// groups first (setObject) for what dxflib leaves out, and calls objectEnded after dxflib is
// done with it, for the kinds dxflib does not read at all.

#include <map>
#include <string>

#include <dl_creationadapter.h>

#include "host/base/AcString.h"
#include "host/database/AcDbDatabase.h"
#include "host/dxf/DxfEntityReader.h"
#include "host/dxf/DxfObject.h"
#include "host/dxf/DxfReadError.h"
#include "host/dxf/DxfTableReader.h"
#include "host/dxf/DxfTextCodec.h"

class DxfDatabaseBuilder : public DL_CreationAdapter {
public:
    // db is a database without default records (AcDbDatabase(false)).
    explicit DxfDatabaseBuilder(AcDbDatabase& db);

    void setObject(const DxfObject* object);
    // Builds the object last set if it is of a kind dxflib does not read: application ids, block
    // records, attribute definitions.
    void objectEnded();
    // Adds the records a drawing always has when the file lacked them, registers the
    // applications extended data uses and continues handles from the file's seed. False (error
    // set) for a drawing no one could use: a block that inserts itself.
    bool finish(DxfReadError& error);

    void setVariableString(const std::string& key, const std::string& value, int code) override;
    void setVariableInt(const std::string& key, int value, int code) override;
    void addLayer(const DL_LayerData& d) override;
    void addLinetype(const DL_LinetypeData& d) override;
    void addTextStyle(const DL_StyleData& d) override;
    void addBlock(const DL_BlockData& d) override;
    void endBlock() override;
    void addPoint(const DL_PointData& d) override;
    void addLine(const DL_LineData& d) override;
    void addArc(const DL_ArcData& d) override;
    void addCircle(const DL_CircleData& d) override;
    void addPolyline(const DL_PolylineData& d) override;
    void addInsert(const DL_InsertData& d) override;
    void addText(const DL_TextData& d) override;
    void addMText(const DL_MTextData& d) override;
    void addAttribute(const DL_AttributeData& d) override;
    void endSequence() override;

private:
    // Adds a record (null is skipped) to a table under the object's handle.
    void addRecord(AcDbObjectId table, AcDbSymbolTableRecord* record);
    // Adds an entity to its block under the object's handle; takes ownership.
    void place(AcDbEntity* entity);
    // The block record of that name, made (under the handle, when free) if the file has not
    // listed it.
    AcDbObjectId blockNamed(const std::wstring& name, Adesk::UInt32 handle = 0);
    void noteTextStyle(const std::wstring& name) { m_textStyles.emplace(acutUpperName(name), name); }

    AcDbDatabase& m_db;
    DxfTextCodec m_codec;
    DxfEntityReader m_entities{m_codec};
    DxfTableReader m_tables{m_codec};
    const DxfObject* m_object = nullptr;
    AcDbObjectId m_block;           // the block being read; null in the ENTITIES section
    AcDbObjectId m_lastReference;   // the block reference ATTRIBs belong to
    Adesk::UInt32 m_handseed = 0;
    std::map<std::wstring, std::wstring> m_textStyles;  // the styles texts use, by upper-case name
};
