#pragma once
// An opened drawing entity that closes itself.
//
// Ownership: for an entity in a database the pointer holds an open (read or write) and closes it
// when it goes; for an entity not in a database it owns the object and deletes it unless it was
// added to a drawing first.

#include <memory>

#include "host/database/AcDbDatabase.h"
#include "host/entities/AcDbEntity.h"

namespace XimoGis {

class CXimoCEntityPtr {
public:
    CXimoCEntityPtr() = default;
    CXimoCEntityPtr(AcDbObjectId id, AcDb::OpenMode mode, bool openErased = false);
    // Takes an entity not yet in a database.
    explicit CXimoCEntityPtr(AcDbEntity* newEntity);
    ~CXimoCEntityPtr();
    CXimoCEntityPtr(CXimoCEntityPtr&& other) noexcept;
    CXimoCEntityPtr& operator=(CXimoCEntityPtr&& other) noexcept;
    CXimoCEntityPtr(const CXimoCEntityPtr&) = delete;
    CXimoCEntityPtr& operator=(const CXimoCEntityPtr&) = delete;

    Acad::ErrorStatus open(AcDbObjectId id, AcDb::OpenMode mode, bool openErased = false);
    void close();
    bool isOpen() const { return m_entity != nullptr; }
    Acad::ErrorStatus openStatus() const { return m_status; }
    AcDbEntity* get() const { return m_entity; }
    AcDbEntity* operator->() const { return m_entity; }
    explicit operator bool() const { return m_entity != nullptr; }
    AcDbObjectId objectId() const { return m_entity ? m_entity->objectId() : AcDbObjectId(); }
    bool isWriteEnabled() const { return m_entity && m_entity->isWriteEnabled(); }
    Acad::ErrorStatus upgradeOpen();
    Acad::ErrorStatus downgradeOpen();

    // Adds a new entity to a block (model space of the working database when null); the entity
    // stays open for write under this pointer.
    Acad::ErrorStatus addToDrawing(AcDbObjectId block = AcDbObjectId());

    // Properties, applied to a block reference's attributes too when subEntities is set.
    Acad::ErrorStatus setColorIndex(Adesk::UInt16 color, bool subEntities = true);
    Acad::ErrorStatus setLinetype(const ACHAR* linetype, bool subEntities = true);
    Acad::ErrorStatus setLayer(const ACHAR* layer, bool subEntities = true);

private:
    template <class F>
    Acad::ErrorStatus applyToSubEntities(F&& f);

    AcDbEntity* m_entity = nullptr;
    bool m_owned = false;  // a new entity not in a database
    Acad::ErrorStatus m_status = Acad::eNullObjectId;
};

}  // namespace XimoGis
