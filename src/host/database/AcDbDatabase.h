#pragma once
// A drawing database: symbol tables, block records with their entities, header values.
// The database owns every object added to it; ids point into it and stay valid while it lives.

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "host/database/AcDbBlockTable.h"
#include "host/database/AcDbLayerTable.h"
#include "host/database/AcDbLinetypeTable.h"
#include "host/database/AcDbRegAppTable.h"
#include "host/database/AcDbStub.h"
#include "host/database/AcDbTextStyleTable.h"

class AcDbDatabase {
public:
    // With buildDefaultDrawing the database holds model and paper space, layer "0", the linetypes
    // ByBlock, ByLayer and Continuous, text style "Standard" and application "ACAD", as a new
    // drawing does. Without, it holds only the empty tables (for loading a file into).
    explicit AcDbDatabase(bool buildDefaultDrawing = true);
    ~AcDbDatabase();
    AcDbDatabase(const AcDbDatabase&) = delete;
    AcDbDatabase& operator=(const AcDbDatabase&) = delete;

    Acad::ErrorStatus getBlockTable(AcDbBlockTable*& table, AcDb::OpenMode mode) const;
    Acad::ErrorStatus getLayerTable(AcDbLayerTable*& table, AcDb::OpenMode mode) const;
    Acad::ErrorStatus getLinetypeTable(AcDbLinetypeTable*& table, AcDb::OpenMode mode) const;
    Acad::ErrorStatus getTextStyleTable(AcDbTextStyleTable*& table, AcDb::OpenMode mode) const;
    Acad::ErrorStatus getRegAppTable(AcDbRegAppTable*& table, AcDb::OpenMode mode) const;
    Acad::ErrorStatus getSymbolTable(AcDbBlockTable*& t, AcDb::OpenMode m) const { return getBlockTable(t, m); }
    Acad::ErrorStatus getSymbolTable(AcDbLayerTable*& t, AcDb::OpenMode m) const { return getLayerTable(t, m); }
    Acad::ErrorStatus getSymbolTable(AcDbLinetypeTable*& t, AcDb::OpenMode m) const { return getLinetypeTable(t, m); }
    Acad::ErrorStatus getSymbolTable(AcDbTextStyleTable*& t, AcDb::OpenMode m) const { return getTextStyleTable(t, m); }
    Acad::ErrorStatus getSymbolTable(AcDbRegAppTable*& t, AcDb::OpenMode m) const { return getRegAppTable(t, m); }

    AcDbObjectId blockTableId() const { return m_blockTable; }
    AcDbObjectId layerTableId() const { return m_layerTable; }
    AcDbObjectId linetypeTableId() const { return m_linetypeTable; }
    AcDbObjectId textStyleTableId() const { return m_textStyleTable; }
    AcDbObjectId regAppTableId() const { return m_regAppTable; }

    // Record ids by name; null when absent.
    AcDbObjectId modelSpaceId() const;
    AcDbObjectId blockId(const std::wstring& name) const;
    AcDbObjectId layerId(const std::wstring& name) const;
    AcDbObjectId linetypeId(const std::wstring& name) const;
    AcDbObjectId textStyleId(const std::wstring& name) const;
    AcDbObjectId layerZero() const { return layerId(L"0"); }
    AcDbObjectId byLayerLinetype() const { return linetypeId(L"ByLayer"); }
    AcDbObjectId byBlockLinetype() const { return linetypeId(L"ByBlock"); }
    AcDbObjectId continuousLinetype() const { return linetypeId(L"Continuous"); }

    // Adds a layer or returns the existing one of that name.
    Acad::ErrorStatus addLayer(AcDbObjectId& id, const std::wstring& name, Adesk::UInt16 color = 7,
                               const std::wstring& linetype = L"Continuous");
    // Loads a linetype by name from the host's standard set (the file name is accepted for
    // compatibility; the patterns are built in). Loading a present linetype is not an error.
    Acad::ErrorStatus loadLineTypeFile(const ACHAR* linetypeName, const ACHAR* fileName = L"acadiso.lin");
    // Registers an application for extended data (no error when it is registered already).
    Acad::ErrorStatus registerApplication(const std::wstring& name);
    bool isRegApp(const std::wstring& name) const;

    // Copies the model space of source into a new block definition of this database named
    // blockName, with the layers, linetypes, text styles, applications and nested blocks its
    // entities use that this database lacks. Fails with eDuplicateRecordName when the name is taken.
    Acad::ErrorStatus insert(AcDbObjectId& blockId, const ACHAR* blockName, const AcDbDatabase* source);

    // Drawing units ($INSUNITS): 4 = millimetres.
    int insunits() const { return m_insunits; }
    void setInsunits(int units) { m_insunits = units; }
    // The next free handle ($HANDSEED).
    Adesk::UInt32 handseed() const { return m_nextHandle; }
    std::size_t numObjects() const { return m_stubs.size(); }

    // Saving and loading as DXF (R2000). dxfOut writes a temporary file beside the target and
    // renames it over the target, so a failed save leaves the old file as it was. dxfIn loads into
    // this database only when the whole file reads; on failure the database is unchanged and
    // error names the file and line.
    Acad::ErrorStatus dxfOut(const ACHAR* fileName, std::wstring* error = nullptr) const;
    Acad::ErrorStatus dxfIn(const ACHAR* fileName, std::wstring* error = nullptr);
    const std::wstring& filename() const { return m_fileName; }
    void setFilename(const std::wstring& name) { m_fileName = name; }

    // Host-layer internals (object creation, reading files).
    Acad::ErrorStatus addAcDbObject(AcDbObjectId& id, AcDbObject* object, AcDbObjectId owner,
                                    Adesk::UInt32 handle = 0);
    AcDbObjectId idFromHandle(Adesk::UInt32 handle) const;
    // Reading files: the next object added takes this handle when it is free (objects are added
    // through their tables and blocks, which give no handle of their own), and the next free
    // handle is raised to the file's (never lowered), so handles in use elsewhere are not reused.
    void setHandleForNextObject(Adesk::UInt32 handle) { m_handleForNext = handle; }
    void setHandseed(Adesk::UInt32 seed);
    static AcDbObjectId idOf(AcDbStub* stub) { return AcDbObjectId(stub); }
    static AcDbStub* stubOf(AcDbObjectId id) { return id.m_stub; }
    // The object behind an id without opening it: for the host layer's own bookkeeping only.
    static AcDbObject* peekObject(AcDbObjectId id);
    // Exchanges the whole content of two databases; ids follow their objects.
    void swapContents(AcDbDatabase& other);

private:
    AcDbObjectId recordId(AcDbObjectId table, const std::wstring& name) const;

    std::vector<std::unique_ptr<AcDbStub>> m_stubs;
    std::unordered_map<Adesk::UInt32, AcDbStub*> m_byHandle;
    Adesk::UInt32 m_nextHandle = 1;
    Adesk::UInt32 m_handleForNext = 0;
    AcDbObjectId m_blockTable, m_layerTable, m_linetypeTable, m_textStyleTable, m_regAppTable;
    int m_insunits = 4;
    std::wstring m_fileName;
};

// The database the host's commands work on.
class AcDbHostApplicationServices {
public:
    AcDbDatabase* workingDatabase() const { return m_working; }
    void setWorkingDatabase(AcDbDatabase* db) { m_working = db; }

private:
    AcDbDatabase* m_working = nullptr;
};
AcDbHostApplicationServices* acdbHostApplicationServices();

// Registers an application in the working database; RTNORM or RTERROR as the host returns.
int acdbRegApp(const ACHAR* name);
