#include "host/entities/AcDbBlockReference.h"

#include <cmath>

#include "host/database/AcDbDatabase.h"
#include "host/entities/AcDbAttributeDefinition.h"

AcDbBlockReference::AcDbBlockReference(const AcGePoint3d& position, AcDbObjectId blockTableRecord)
    : m_block(blockTableRecord), m_position(position) {}

AcDbBlockReference::AcDbBlockReference(const AcDbBlockReference& other)
    : AcDbEntity(other), m_block(other.m_block), m_position(other.m_position), m_scale(other.m_scale),
      m_rotation(other.m_rotation) {
    for (const auto& attribute : other.m_pending)
        m_pending.emplace_back(static_cast<AcDbAttribute*>(attribute->clone()));
    for (const AcDbObjectId& id : other.m_attributes) {
        if (id.isErased()) continue;
        if (const auto* attribute = dynamic_cast<const AcDbAttribute*>(AcDbDatabase::peekObject(id)))
            m_pending.emplace_back(static_cast<AcDbAttribute*>(attribute->clone()));
    }
}

AcDbBlockReference::~AcDbBlockReference() = default;

Acad::ErrorStatus AcDbBlockReference::setScaleFactors(const AcGeScale3d& s) {
    if (s.sx == 0.0 || s.sy == 0.0 || s.sz == 0.0) return Acad::eInvalidInput;
    m_scale = s;
    return Acad::eOk;
}

AcGePoint3d AcDbBlockReference::blockOrigin() const {
    const auto* block = dynamic_cast<const AcDbBlockTableRecord*>(AcDbDatabase::peekObject(m_block));
    return block ? block->origin() : AcGePoint3d::kOrigin;
}

AcGeMatrix3d AcDbBlockReference::blockTransform() const {
    AcGeMatrix3d scale;
    scale.entry[0][0] = m_scale.sx;
    scale.entry[1][1] = m_scale.sy;
    scale.entry[2][2] = m_scale.sz;
    return AcGeMatrix3d::translation(m_position.asVector()) * AcGeMatrix3d::rotation(m_rotation, AcGeVector3d::kZAxis) *
           scale * AcGeMatrix3d::translation(-blockOrigin().asVector());
}

Acad::ErrorStatus AcDbBlockReference::appendAttribute(AcDbObjectId& id, AcDbAttribute* attribute) {
    id.setNull();
    if (!attribute) return Acad::eNullEntityPointer;
    if (!attribute->objectId().isNull()) return Acad::eAlreadyInDb;
    AcDbDatabase* db = database();
    if (!db) {
        m_pending.emplace_back(attribute);
        return Acad::eOk;
    }
    if (!isWriteEnabled()) return Acad::eNotOpenForWrite;
    const Acad::ErrorStatus es = db->addAcDbObject(id, attribute, objectId());
    if (es == Acad::eOk) m_attributes.push_back(id);
    return es;
}

Acad::ErrorStatus AcDbBlockReference::appendAttribute(AcDbAttribute* attribute) {
    AcDbObjectId id;
    const Acad::ErrorStatus es = appendAttribute(id, attribute);
    if (es == Acad::eOk && !id.isNull()) attribute->close();
    return es;
}

void AcDbBlockReference::subAddedToDatabase(AcDbDatabase* db) {
    AcDbEntity::subAddedToDatabase(db);
    for (auto& attribute : m_pending) {
        AcDbObjectId id;
        AcDbAttribute* raw = attribute.release();
        if (db->addAcDbObject(id, raw, objectId()) == Acad::eOk) {
            raw->close();
            m_attributes.push_back(id);
        } else {
            delete raw;
        }
    }
    m_pending.clear();
}

template <class F>
void AcDbBlockReference::forEachAttribute(AcDb::OpenMode mode, F&& f) const {
    for (const auto& attribute : m_pending) f(*attribute);
    for (const AcDbObjectId& id : m_attributes) {
        AcDbAttribute* attribute = nullptr;
        if (acdbOpenObject(attribute, id, mode) != Acad::eOk) continue;
        f(*attribute);
        attribute->close();
    }
}

void AcDbBlockReference::subErase(bool erasing) {
    for (const AcDbObjectId& id : m_attributes) {
        AcDbAttribute* attribute = nullptr;
        if (acdbOpenObject(attribute, id, AcDb::kForWrite, true) == Acad::eOk) {
            attribute->erase(erasing);
            attribute->close();
        }
    }
}

Acad::ErrorStatus AcDbBlockReference::getGeomExtents(AcDbExtents& extents) const {
    extents = explodedExtents();
    if (!extents.isValid()) extents.addPoint(m_position);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockReference::transformBy(const AcGeMatrix3d& m) {
    const AcGeMatrix3d total = m * blockTransform();
    const AcGeVector3d x = total * AcGeVector3d::kXAxis;
    const AcGeVector3d y = total * AcGeVector3d::kYAxis;
    const AcGeVector3d z = total * AcGeVector3d::kZAxis;
    m_position.transformBy(m);
    m_rotation = std::atan2(x.y, x.x);
    // A reflection shows as a negative Y scale after the rotation has taken X.
    const double handedness = x.crossProduct(y).dotProduct(z) < 0.0 ? -1.0 : 1.0;
    m_scale = AcGeScale3d(x.length(), handedness * y.length(), z.length());
    Acad::ErrorStatus result = Acad::eOk;
    forEachAttribute(AcDb::kForWrite, [&](AcDbAttribute& attribute) {
        if (attribute.transformBy(m) != Acad::eOk) result = Acad::eNotApplicable;
    });
    return result;
}

Acad::ErrorStatus AcDbBlockReference::explode(AcDbVoidPtrArray& entities) const {
    const auto* block = dynamic_cast<const AcDbBlockTableRecord*>(AcDbDatabase::peekObject(m_block));
    if (!block) return Acad::eInvalidInput;
    const AcGeMatrix3d transform = blockTransform();
    for (const AcDbObjectId& id : block->entityIds()) {
        if (id.isErased()) continue;
        const auto* entity = dynamic_cast<const AcDbEntity*>(AcDbDatabase::peekObject(id));
        if (!entity || dynamic_cast<const AcDbAttributeDefinition*>(entity)) continue;
        AcDbEntity* copy = nullptr;
        if (entity->getTransformedCopy(transform, copy) == Acad::eOk) entities.append(copy);
    }
    forEachAttribute(AcDb::kForRead, [&](AcDbAttribute& attribute) {
        if (attribute.isInvisible()) return;
        auto* text = new AcDbText;
        text->copyTextFrom(attribute);
        entities.append(text);
    });
    return Acad::eOk;
}
