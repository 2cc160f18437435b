#include "framework/cad/CXimoCEntityPtr.h"

#include <utility>

#include "host/entities/AcDbBlockReference.h"

namespace XimoGis {

CXimoCEntityPtr::CXimoCEntityPtr(AcDbObjectId id, AcDb::OpenMode mode, bool openErased) { open(id, mode, openErased); }

CXimoCEntityPtr::CXimoCEntityPtr(AcDbEntity* newEntity)
    : m_entity(newEntity), m_owned(newEntity && newEntity->objectId().isNull()),
      m_status(newEntity ? Acad::eOk : Acad::eNullEntityPointer) {}

CXimoCEntityPtr::~CXimoCEntityPtr() { close(); }

CXimoCEntityPtr::CXimoCEntityPtr(CXimoCEntityPtr&& other) noexcept
    : m_entity(std::exchange(other.m_entity, nullptr)), m_owned(std::exchange(other.m_owned, false)),
      m_status(other.m_status) {}

CXimoCEntityPtr& CXimoCEntityPtr::operator=(CXimoCEntityPtr&& other) noexcept {
    if (this != &other) {
        close();
        m_entity = std::exchange(other.m_entity, nullptr);
        m_owned = std::exchange(other.m_owned, false);
        m_status = other.m_status;
    }
    return *this;
}

Acad::ErrorStatus CXimoCEntityPtr::open(AcDbObjectId id, AcDb::OpenMode mode, bool openErased) {
    close();
    m_status = acdbOpenObject(m_entity, id, mode, openErased);
    return m_status;
}

void CXimoCEntityPtr::close() {
    if (!m_entity) return;
    if (m_owned) delete m_entity;
    else m_entity->close();
    m_entity = nullptr;
    m_owned = false;
}

Acad::ErrorStatus CXimoCEntityPtr::upgradeOpen() {
    return m_entity ? m_entity->upgradeOpen() : Acad::eNullEntityPointer;
}

Acad::ErrorStatus CXimoCEntityPtr::downgradeOpen() {
    return m_entity ? m_entity->downgradeOpen() : Acad::eNullEntityPointer;
}

Acad::ErrorStatus CXimoCEntityPtr::addToDrawing(AcDbObjectId block) {
    if (!m_entity) return Acad::eNullEntityPointer;
    if (!m_owned) return Acad::eAlreadyInDb;
    if (block.isNull()) {
        AcDbDatabase* db = acdbHostApplicationServices()->workingDatabase();
        if (!db) return Acad::eNoDocument;
        block = db->modelSpaceId();
    }
    AcDbBlockTableRecord* record = nullptr;
    Acad::ErrorStatus es = acdbOpenObject(record, block, AcDb::kForWrite);
    if (es != Acad::eOk) return es;
    es = record->appendAcDbEntity(m_entity);
    record->close();
    if (es == Acad::eOk) m_owned = false;  // the database owns it now; it stays open for write
    return es;
}

template <class F>
Acad::ErrorStatus CXimoCEntityPtr::applyToSubEntities(F&& f) {
    auto* reference = dynamic_cast<AcDbBlockReference*>(m_entity);
    if (!reference) return Acad::eOk;
    for (const auto& attribute : reference->pendingAttributes()) f(*attribute);
    for (const AcDbObjectId& id : reference->attributeIds()) {
        AcDbAttribute* attribute = nullptr;
        if (acdbOpenObject(attribute, id, AcDb::kForWrite) != Acad::eOk) continue;
        f(*attribute);
        attribute->close();
    }
    return Acad::eOk;
}

Acad::ErrorStatus CXimoCEntityPtr::setColorIndex(Adesk::UInt16 color, bool subEntities) {
    if (!m_entity) return Acad::eNullEntityPointer;
    const Acad::ErrorStatus es = m_entity->setColorIndex(color);
    if (es == Acad::eOk && subEntities) applyToSubEntities([color](AcDbEntity& e) { e.setColorIndex(color); });
    return es;
}

Acad::ErrorStatus CXimoCEntityPtr::setLinetype(const ACHAR* linetype, bool subEntities) {
    if (!m_entity) return Acad::eNullEntityPointer;
    const Acad::ErrorStatus es = m_entity->setLinetype(linetype);
    if (es == Acad::eOk && subEntities) applyToSubEntities([linetype](AcDbEntity& e) { e.setLinetype(linetype); });
    return es;
}

Acad::ErrorStatus CXimoCEntityPtr::setLayer(const ACHAR* layer, bool subEntities) {
    if (!m_entity) return Acad::eNullEntityPointer;
    const Acad::ErrorStatus es = m_entity->setLayer(layer);
    if (es == Acad::eOk && subEntities) applyToSubEntities([layer](AcDbEntity& e) { e.setLayer(layer); });
    return es;
}

}  // namespace XimoGis
