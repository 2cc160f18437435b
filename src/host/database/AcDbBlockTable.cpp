#include "host/database/AcDbBlockTable.h"

#include <algorithm>

#include "host/base/AcString.h"
#include "host/database/AcDbDatabase.h"
#include "host/entities/AcDbAttributeDefinition.h"
#include "host/entities/AcDbEntity.h"

Acad::ErrorStatus AcDbBlockTableRecord::appendAcDbEntity(AcDbObjectId& id, AcDbEntity* entity) {
    id.setNull();
    if (!entity) return Acad::eNullEntityPointer;
    if (!entity->objectId().isNull()) return Acad::eAlreadyInDb;
    AcDbDatabase* db = database();
    if (!db) return Acad::eNotInDatabase;
    if (!isWriteEnabled()) return Acad::eNotOpenForWrite;
    const Acad::ErrorStatus es = db->addAcDbObject(id, entity, objectId());
    if (es != Acad::eOk) return es;
    m_entities.push_back(id);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockTableRecord::appendAcDbEntity(AcDbEntity* entity) {
    AcDbObjectId id;
    return appendAcDbEntity(id, entity);
}

Acad::ErrorStatus AcDbBlockTableRecord::newIterator(AcDbBlockTableRecordIterator*& iterator, bool atBeginning,
                                                    bool skipDeleted) const {
    iterator = new AcDbBlockTableRecordIterator(m_entities);
    iterator->start(atBeginning, skipDeleted);
    return Acad::eOk;
}

bool AcDbBlockTableRecord::isLayout() const {
    return acutNamesEqual(name(), ACDB_MODEL_SPACE) || acutNamesEqual(name(), ACDB_PAPER_SPACE);
}

bool AcDbBlockTableRecord::hasAttributeDefinitions() const {
    return std::any_of(m_entities.begin(), m_entities.end(), [](const AcDbObjectId& id) {
        return !id.isErased() && dynamic_cast<AcDbAttributeDefinition*>(AcDbDatabase::peekObject(id)) != nullptr;
    });
}

Acad::ErrorStatus AcDbBlockTableRecordIterator::getEntityId(AcDbObjectId& id) const {
    return currentId(id);
}

Acad::ErrorStatus AcDbBlockTableRecordIterator::getEntity(AcDbEntity*& entity, AcDb::OpenMode mode,
                                                          bool openErased) const {
    entity = nullptr;
    AcDbObjectId id;
    const Acad::ErrorStatus es = getEntityId(id);
    if (es != Acad::eOk) return es;
    return acdbOpenObject(entity, id, mode, openErased);
}
