#include "host/database/AcDbDatabase.h"

#include <algorithm>

#include "host/base/AcString.h"
#include "host/database/acdbOpenObject.h"

namespace {
template <class Table>
AcDbObjectId makeTable(AcDbDatabase& db) {
    AcDbObjectId id;
    auto* table = new Table;
    db.addAcDbObject(id, table, AcDbObjectId());
    table->close();
    return id;
}

template <class Table, class Record>
void addRecord(const AcDbDatabase& db, AcDbObjectId tableId, Record* record, const ACHAR* name) {
    Table* table = nullptr;
    acdbOpenObject(table, tableId, AcDb::kForWrite);
    record->setName(name);
    table->add(record);
    record->close();
    table->close();
    (void)db;
}
}  // namespace

AcDbDatabase::AcDbDatabase(bool buildDefaultDrawing) {
    m_blockTable = makeTable<AcDbBlockTable>(*this);
    m_layerTable = makeTable<AcDbLayerTable>(*this);
    m_linetypeTable = makeTable<AcDbLinetypeTable>(*this);
    m_textStyleTable = makeTable<AcDbTextStyleTable>(*this);
    m_regAppTable = makeTable<AcDbRegAppTable>(*this);
    if (!buildDefaultDrawing) return;
    addRecord<AcDbBlockTable>(*this, m_blockTable, new AcDbBlockTableRecord, ACDB_MODEL_SPACE);
    addRecord<AcDbBlockTable>(*this, m_blockTable, new AcDbBlockTableRecord, ACDB_PAPER_SPACE);
    addRecord<AcDbLinetypeTable>(*this, m_linetypeTable, new AcDbLinetypeTableRecord, L"ByBlock");
    addRecord<AcDbLinetypeTable>(*this, m_linetypeTable, new AcDbLinetypeTableRecord, L"ByLayer");
    auto* continuous = new AcDbLinetypeTableRecord;
    continuous->setComments(L"Solid line");
    addRecord<AcDbLinetypeTable>(*this, m_linetypeTable, continuous, L"Continuous");
    auto* layer0 = new AcDbLayerTableRecord;
    layer0->setLinetypeObjectId(continuousLinetype());
    addRecord<AcDbLayerTable>(*this, m_layerTable, layer0, L"0");
    addRecord<AcDbTextStyleTable>(*this, m_textStyleTable, new AcDbTextStyleTableRecord, L"Standard");
    addRecord<AcDbRegAppTable>(*this, m_regAppTable, new AcDbRegAppTableRecord, L"ACAD");
}

AcDbDatabase::~AcDbDatabase() {
    if (acdbHostApplicationServices()->workingDatabase() == this)
        acdbHostApplicationServices()->setWorkingDatabase(nullptr);
}

Acad::ErrorStatus AcDbDatabase::addAcDbObject(AcDbObjectId& id, AcDbObject* object, AcDbObjectId owner,
                                              Adesk::UInt32 handle) {
    id.setNull();
    if (!object) return Acad::eNullObjectPointer;
    if (object->m_stub) return Acad::eAlreadyInDb;
    if (handle == 0) handle = m_handleForNext;
    m_handleForNext = 0;
    if (handle == 0 || m_byHandle.count(handle)) handle = m_nextHandle;
    m_nextHandle = std::max(m_nextHandle, handle + 1);
    auto stub = std::make_unique<AcDbStub>();
    stub->database = this;
    stub->handle = handle;
    stub->owner = owner;
    stub->writer = true;
    stub->object.reset(object);
    object->m_stub = stub.get();
    m_byHandle[handle] = stub.get();
    id = AcDbObjectId(stub.get());
    m_stubs.push_back(std::move(stub));
    object->subAddedToDatabase(this);
    return Acad::eOk;
}

void AcDbDatabase::setHandseed(Adesk::UInt32 seed) { m_nextHandle = std::max(m_nextHandle, seed); }

AcDbObject* AcDbDatabase::peekObject(AcDbObjectId id) {
    return id.isNull() ? nullptr : stubOf(id)->object.get();
}

AcDbObjectId AcDbDatabase::idFromHandle(Adesk::UInt32 handle) const {
    const auto found = m_byHandle.find(handle);
    return found == m_byHandle.end() ? AcDbObjectId() : AcDbObjectId(found->second);
}

void AcDbDatabase::swapContents(AcDbDatabase& other) {
    std::swap(m_stubs, other.m_stubs);
    std::swap(m_byHandle, other.m_byHandle);
    std::swap(m_nextHandle, other.m_nextHandle);
    std::swap(m_handleForNext, other.m_handleForNext);
    std::swap(m_blockTable, other.m_blockTable);
    std::swap(m_layerTable, other.m_layerTable);
    std::swap(m_linetypeTable, other.m_linetypeTable);
    std::swap(m_textStyleTable, other.m_textStyleTable);
    std::swap(m_regAppTable, other.m_regAppTable);
    std::swap(m_insunits, other.m_insunits);
    for (auto& stub : m_stubs) stub->database = this;
    for (auto& stub : other.m_stubs) stub->database = &other;
}

Acad::ErrorStatus AcDbDatabase::getBlockTable(AcDbBlockTable*& t, AcDb::OpenMode m) const {
    return acdbOpenObject(t, m_blockTable, m);
}
Acad::ErrorStatus AcDbDatabase::getLayerTable(AcDbLayerTable*& t, AcDb::OpenMode m) const {
    return acdbOpenObject(t, m_layerTable, m);
}
Acad::ErrorStatus AcDbDatabase::getLinetypeTable(AcDbLinetypeTable*& t, AcDb::OpenMode m) const {
    return acdbOpenObject(t, m_linetypeTable, m);
}
Acad::ErrorStatus AcDbDatabase::getTextStyleTable(AcDbTextStyleTable*& t, AcDb::OpenMode m) const {
    return acdbOpenObject(t, m_textStyleTable, m);
}
Acad::ErrorStatus AcDbDatabase::getRegAppTable(AcDbRegAppTable*& t, AcDb::OpenMode m) const {
    return acdbOpenObject(t, m_regAppTable, m);
}

AcDbObjectId AcDbDatabase::recordId(AcDbObjectId tableId, const std::wstring& name) const {
    // Tables are read through their stub: looking a name up must not depend on open state.
    const auto* table = dynamic_cast<const AcDbSymbolTable*>(peekObject(tableId));
    AcDbObjectId id;
    if (table) table->getAt(name.c_str(), id);
    return id;
}

AcDbObjectId AcDbDatabase::modelSpaceId() const { return recordId(m_blockTable, ACDB_MODEL_SPACE); }
AcDbObjectId AcDbDatabase::blockId(const std::wstring& name) const { return recordId(m_blockTable, name); }
AcDbObjectId AcDbDatabase::layerId(const std::wstring& name) const { return recordId(m_layerTable, name); }
AcDbObjectId AcDbDatabase::linetypeId(const std::wstring& name) const { return recordId(m_linetypeTable, name); }
AcDbObjectId AcDbDatabase::textStyleId(const std::wstring& name) const { return recordId(m_textStyleTable, name); }

bool AcDbDatabase::isRegApp(const std::wstring& name) const { return !recordId(m_regAppTable, name).isNull(); }

Acad::ErrorStatus AcDbDatabase::registerApplication(const std::wstring& name) {
    if (name.empty()) return Acad::eInvalidInput;
    if (isRegApp(name)) return Acad::eOk;
    AcDbRegAppTable* table = nullptr;
    Acad::ErrorStatus es = getRegAppTable(table, AcDb::kForWrite);
    if (es != Acad::eOk) return es;
    auto* record = new AcDbRegAppTableRecord;
    record->setName(name.c_str());
    es = table->add(record);
    if (es == Acad::eOk) record->close(); else delete record;
    table->close();
    return es;
}

Acad::ErrorStatus AcDbDatabase::loadLineTypeFile(const ACHAR* linetypeName, const ACHAR*) {
    if (!linetypeName) return Acad::eInvalidInput;
    if (!linetypeId(linetypeName).isNull()) return Acad::eOk;
    const auto& standard = acdbStandardLinetypes();
    const auto found = std::find_if(standard.begin(), standard.end(),
                                    [&](const AcDbStandardLinetype& lt) { return acutNamesEqual(lt.name, linetypeName); });
    if (found == standard.end()) return Acad::eKeyNotFound;
    AcDbLinetypeTable* table = nullptr;
    Acad::ErrorStatus es = getLinetypeTable(table, AcDb::kForWrite);
    if (es != Acad::eOk) return es;
    auto* record = new AcDbLinetypeTableRecord;
    record->setName(found->name);
    record->setComments(found->comments);
    record->setDashes(found->dashes);
    es = table->add(record);
    if (es == Acad::eOk) record->close(); else delete record;
    table->close();
    return es;
}

Acad::ErrorStatus AcDbDatabase::addLayer(AcDbObjectId& id, const std::wstring& name, Adesk::UInt16 color,
                                         const std::wstring& linetype) {
    id = layerId(name);
    if (!id.isNull()) return Acad::eOk;
    AcDbObjectId linetypeRecord = linetypeId(linetype);
    if (linetypeRecord.isNull() && loadLineTypeFile(linetype.c_str()) == Acad::eOk) linetypeRecord = linetypeId(linetype);
    if (linetypeRecord.isNull()) linetypeRecord = continuousLinetype();
    AcDbLayerTable* table = nullptr;
    Acad::ErrorStatus es = getLayerTable(table, AcDb::kForWrite);
    if (es != Acad::eOk) return es;
    auto* record = new AcDbLayerTableRecord;
    es = record->setName(name.c_str());
    record->setColorIndex(color);
    record->setLinetypeObjectId(linetypeRecord);
    if (es == Acad::eOk) es = table->add(id, record);
    if (es == Acad::eOk) record->close(); else delete record;
    table->close();
    return es;
}

Acad::ErrorStatus acdbOpenObject(AcDbObject*& object, AcDbObjectId id, AcDb::OpenMode mode, bool openErased) {
    object = nullptr;
    if (id.isNull()) return Acad::eNullObjectId;
    AcDbStub* stub = AcDbDatabase::stubOf(id);
    if (!stub->object) return Acad::eNullObjectPointer;
    if (stub->erased && !openErased) return Acad::eWasErased;
    switch (mode) {
        case AcDb::kForRead:
        case AcDb::kForNotify:
            if (stub->writer) return Acad::eWasOpenForWrite;
            if (stub->readers >= 256) return Acad::eAtMaxReaders;
            ++stub->readers;
            break;
        case AcDb::kForWrite:
            if (stub->writer) return Acad::eWasOpenForWrite;
            if (stub->readers > 0) return Acad::eWasOpenForRead;
            stub->writer = true;
            break;
    }
    object = stub->object.get();
    return Acad::eOk;
}

AcDbHostApplicationServices* acdbHostApplicationServices() {
    static AcDbHostApplicationServices services;
    return &services;
}

int acdbRegApp(const ACHAR* name) {
    AcDbDatabase* db = acdbHostApplicationServices()->workingDatabase();
    if (!db || !name) return RTERROR;
    return db->registerApplication(name) == Acad::eOk ? RTNORM : RTERROR;
}
