#include "host/entities/AcDbEntity.h"

#include "host/database/AcDbDatabase.h"

Acad::ErrorStatus AcDbEntity::setLayer(const ACHAR* name) {
    if (!name || !*name) return Acad::eInvalidInput;
    if (AcDbDatabase* db = database(); db && db->layerId(name).isNull()) return Acad::eKeyNotFound;
    m_layer = name;
    return Acad::eOk;
}

AcDbObjectId AcDbEntity::layerId() const {
    AcDbDatabase* db = database();
    return db ? db->layerId(m_layer) : AcDbObjectId();
}

Acad::ErrorStatus AcDbEntity::setColorIndex(Adesk::UInt16 color) {
    if (color > 256) return Acad::eInvalidInput;
    m_color = color;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbEntity::setLinetype(const ACHAR* name) {
    if (!name || !*name) return Acad::eInvalidInput;
    if (AcDbDatabase* db = database(); db && db->linetypeId(name).isNull()) {
        if (db->loadLineTypeFile(name) != Acad::eOk) return Acad::eKeyNotFound;
    }
    m_linetype = name;
    return Acad::eOk;
}

void AcDbEntity::setPropertiesFrom(const AcDbEntity& other) {
    m_layer = other.m_layer;
    m_linetype = other.m_linetype;
    m_color = other.m_color;
    m_linetypeScale = other.m_linetypeScale;
}

void AcDbEntity::subAddedToDatabase(AcDbDatabase* db) {
    AcDbObjectId id;
    if (db->layerId(m_layer).isNull()) db->addLayer(id, m_layer);
    if (db->linetypeId(m_linetype).isNull() && db->loadLineTypeFile(m_linetype.c_str()) != Acad::eOk)
        m_linetype = L"ByLayer";
    for (const auto& app : xDataList()) db->registerApplication(app.application);
}

Acad::ErrorStatus AcDbEntity::getTransformedCopy(const AcGeMatrix3d& m, AcDbEntity*& copy) const {
    copy = static_cast<AcDbEntity*>(clone());
    if (!copy) return Acad::eNotApplicable;
    const Acad::ErrorStatus es = copy->transformBy(m);
    if (es != Acad::eOk) {
        delete copy;
        copy = nullptr;
    }
    return es;
}

Acad::ErrorStatus AcDbEntity::explode(AcDbVoidPtrArray&) const { return Acad::eNotApplicable; }

AcDbExtents AcDbEntity::explodedExtents() const {
    AcDbExtents extents;
    AcDbVoidPtrArray parts;
    explode(parts);
    for (void* part : parts) {
        auto* entity = static_cast<AcDbEntity*>(part);
        AcDbExtents e;
        if (entity->getGeomExtents(e) == Acad::eOk) extents.addExt(e);
        delete entity;
    }
    return extents;
}
