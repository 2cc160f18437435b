#pragma once
// Blocks: model space, paper space and named block definitions, each an ordered list of entities.

#include <vector>

#include "host/database/AcDbIdIterator.h"
#include "host/database/AcDbSymbolTable.h"
#include "host/geometry/AcGePoint3d.h"

class AcDbEntity;
class AcDbBlockTableRecordIterator;

class AcDbBlockTableRecord : public AcDbSymbolTableRecord {
public:
    AcDbBlockTableRecord() = default;
    const ACHAR* isA() const override { return L"AcDbBlockTableRecord"; }
    // Block definitions are copied between databases entity by entity (AcDbDatabase::insert).
    AcDbObject* clone() const override { return nullptr; }

    // The record must be open for write and in a database; the database takes ownership of the
    // entity, which stays open for write until the caller closes it.
    Acad::ErrorStatus appendAcDbEntity(AcDbObjectId& id, AcDbEntity* entity);
    Acad::ErrorStatus appendAcDbEntity(AcDbEntity* entity);
    Acad::ErrorStatus newIterator(AcDbBlockTableRecordIterator*& iterator, bool atBeginning = true,
                                  bool skipDeleted = true) const;
    // Entity ids in database order, erased ones included.
    const std::vector<AcDbObjectId>& entityIds() const { return m_entities; }

    AcGePoint3d origin() const { return m_origin; }
    void setOrigin(const AcGePoint3d& origin) { m_origin = origin; }
    const std::wstring& comments() const { return m_comments; }
    void setComments(const ACHAR* text) { m_comments = text ? text : L""; }
    // Model and paper space.
    bool isLayout() const;
    bool isAnonymous() const { return !name().empty() && name()[0] == L'*' && !isLayout(); }
    bool hasAttributeDefinitions() const;

private:
    std::vector<AcDbObjectId> m_entities;
    AcGePoint3d m_origin;
    std::wstring m_comments;
};

class AcDbBlockTable : public AcDbSymbolTableOf<AcDbBlockTableRecord> {
public:
    const ACHAR* isA() const override { return L"AcDbBlockTable"; }
};

class AcDbBlockTableRecordIterator : public AcDbIdIterator {
public:
    Acad::ErrorStatus getEntityId(AcDbObjectId& id) const;
    Acad::ErrorStatus getEntity(AcDbEntity*& entity, AcDb::OpenMode mode, bool openErased = false) const;

private:
    friend class AcDbBlockTableRecord;
    explicit AcDbBlockTableRecordIterator(std::vector<AcDbObjectId> ids) : AcDbIdIterator(std::move(ids)) {}
};
