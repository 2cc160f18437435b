#pragma once
// Symbol tables: named records (layers, linetypes, text styles, applications, blocks), kept in the
// order they were added. Names compare without regard to case, as the host does.

#include <string>
#include <unordered_map>
#include <vector>

#include "host/database/AcDbIdIterator.h"
#include "host/database/AcDbObject.h"

class AcDbSymbolTableIterator;

class AcDbSymbolTableRecord : public AcDbObject {
public:
    const std::wstring& name() const { return m_name; }
    Acad::ErrorStatus getName(const ACHAR*& name) const { name = m_name.c_str(); return Acad::eOk; }
    // Renames the record; in a table the new name must be free.
    Acad::ErrorStatus setName(const ACHAR* name);

protected:
    AcDbSymbolTableRecord() = default;
    AcDbSymbolTableRecord(const AcDbSymbolTableRecord&) = default;

private:
    std::wstring m_name;
};

class AcDbSymbolTable : public AcDbObject {
public:
    AcDbObject* clone() const override { return nullptr; }  // tables belong to their database

    bool has(const ACHAR* name) const;
    bool has(AcDbObjectId id) const;
    Acad::ErrorStatus getAt(const ACHAR* name, AcDbObjectId& id, bool getErased = false) const;
    // The table must be open for write; it takes ownership of the record.
    Acad::ErrorStatus add(AcDbObjectId& id, AcDbSymbolTableRecord* record);
    Acad::ErrorStatus add(AcDbSymbolTableRecord* record);
    Acad::ErrorStatus newIterator(AcDbSymbolTableIterator*& iterator, bool atBeginning = true,
                                  bool skipDeleted = true) const;
    // Record ids in the order they were added, erased ones included.
    const std::vector<AcDbObjectId>& recordIds() const { return m_records; }

protected:
    AcDbSymbolTable() = default;

private:
    friend class AcDbSymbolTableRecord;
    std::vector<AcDbObjectId> m_records;
    std::unordered_map<std::wstring, AcDbObjectId> m_byName;  // upper-case name -> record
};

// A table whose records are of one kind, opened by name.
template <class Record>
class AcDbSymbolTableOf : public AcDbSymbolTable {
public:
    using AcDbSymbolTable::getAt;
    Acad::ErrorStatus getAt(const ACHAR* name, Record*& record, AcDb::OpenMode mode, bool openErased = false) const;
};

class AcDbSymbolTableIterator : public AcDbIdIterator {
public:
    Acad::ErrorStatus getRecordId(AcDbObjectId& id) const;
    template <class Record>
    Acad::ErrorStatus getRecord(Record*& record, AcDb::OpenMode mode, bool openErased = false) const;

private:
    friend class AcDbSymbolTable;
    explicit AcDbSymbolTableIterator(std::vector<AcDbObjectId> ids) : AcDbIdIterator(std::move(ids)) {}
};

#include "host/database/acdbOpenObject.h"

template <class Record>
Acad::ErrorStatus AcDbSymbolTableOf<Record>::getAt(const ACHAR* name, Record*& record, AcDb::OpenMode mode,
                                                   bool openErased) const {
    record = nullptr;
    AcDbObjectId id;
    const Acad::ErrorStatus es = getAt(name, id, openErased);
    if (es != Acad::eOk) return es;
    return acdbOpenObject(record, id, mode, openErased);
}

template <class Record>
Acad::ErrorStatus AcDbSymbolTableIterator::getRecord(Record*& record, AcDb::OpenMode mode, bool openErased) const {
    record = nullptr;
    AcDbObjectId id;
    const Acad::ErrorStatus es = getRecordId(id);
    if (es != Acad::eOk) return es;
    return acdbOpenObject(record, id, mode, openErased);
}
