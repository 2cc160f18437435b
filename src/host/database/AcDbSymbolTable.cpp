#include "host/database/AcDbSymbolTable.h"

#include <algorithm>

#include "host/base/AcString.h"
#include "host/database/AcDbDatabase.h"

Acad::ErrorStatus AcDbSymbolTableRecord::setName(const ACHAR* name) {
    if (!name || !*name) return Acad::eInvalidInput;
    if (!ownerId().isNull()) {
        if (auto* table = dynamic_cast<AcDbSymbolTable*>(AcDbDatabase::peekObject(ownerId()))) {
            const std::wstring key = acutUpperName(name);
            const auto found = table->m_byName.find(key);
            if (found != table->m_byName.end() && found->second != objectId()) return Acad::eDuplicateRecordName;
            table->m_byName.erase(acutUpperName(m_name));
            table->m_byName[key] = objectId();
        }
    }
    m_name = name;
    return Acad::eOk;
}

bool AcDbSymbolTable::has(const ACHAR* name) const {
    AcDbObjectId id;
    return getAt(name, id) == Acad::eOk;
}

bool AcDbSymbolTable::has(AcDbObjectId id) const {
    return !id.isErased() && std::find(m_records.begin(), m_records.end(), id) != m_records.end();
}

Acad::ErrorStatus AcDbSymbolTable::getAt(const ACHAR* name, AcDbObjectId& id, bool getErased) const {
    id.setNull();
    if (!name) return Acad::eInvalidInput;
    const auto found = m_byName.find(acutUpperName(name));
    if (found == m_byName.end()) return Acad::eKeyNotFound;
    if (found->second.isErased() && !getErased) return Acad::eWasErased;
    id = found->second;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTable::add(AcDbObjectId& id, AcDbSymbolTableRecord* record) {
    id.setNull();
    if (!record) return Acad::eNullObjectPointer;
    if (!record->objectId().isNull()) return Acad::eAlreadyInDb;
    if (record->name().empty()) return Acad::eInvalidInput;
    AcDbDatabase* db = database();
    if (!db) return Acad::eNotInDatabase;
    if (!isWriteEnabled()) return Acad::eNotOpenForWrite;
    const std::wstring key = acutUpperName(record->name());
    if (const auto found = m_byName.find(key); found != m_byName.end() && !found->second.isErased())
        return Acad::eDuplicateRecordName;
    const Acad::ErrorStatus es = db->addAcDbObject(id, record, objectId());
    if (es != Acad::eOk) return es;
    m_records.push_back(id);
    m_byName[key] = id;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTable::add(AcDbSymbolTableRecord* record) {
    AcDbObjectId id;
    return add(id, record);
}

Acad::ErrorStatus AcDbSymbolTable::newIterator(AcDbSymbolTableIterator*& iterator, bool atBeginning,
                                               bool skipDeleted) const {
    iterator = new AcDbSymbolTableIterator(m_records);
    iterator->start(atBeginning, skipDeleted);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTableIterator::getRecordId(AcDbObjectId& id) const {
    return currentId(id);
}
