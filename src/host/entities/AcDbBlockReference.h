#pragma once
// An insertion of a block definition, with the attributes it owns.
//
// Ownership: attributes appended to a reference in a database become database objects owned by
// the reference (opened by id, erased with it). Attributes appended before the reference is in a
// database are held by the reference and added to the database with it.

#include <memory>
#include <vector>

#include "host/entities/AcDbAttribute.h"
#include "host/entities/AcDbEntity.h"

class AcDbBlockReference : public AcDbEntity {
public:
    AcDbBlockReference() = default;
    AcDbBlockReference(const AcGePoint3d& position, AcDbObjectId blockTableRecord);
    AcDbBlockReference(const AcDbBlockReference& other);
    ~AcDbBlockReference() override;
    const ACHAR* isA() const override { return L"AcDbBlockReference"; }
    // Copies the attributes too (held by the copy until it is added to a database).
    AcDbObject* clone() const override { return new AcDbBlockReference(*this); }

    AcDbObjectId blockTableRecord() const { return m_block; }
    Acad::ErrorStatus setBlockTableRecord(AcDbObjectId id) { m_block = id; return Acad::eOk; }
    AcGePoint3d position() const { return m_position; }
    Acad::ErrorStatus setPosition(const AcGePoint3d& p) { m_position = p; return Acad::eOk; }
    AcGeScale3d scaleFactors() const { return m_scale; }
    Acad::ErrorStatus setScaleFactors(const AcGeScale3d& s);
    double rotation() const { return m_rotation; }
    Acad::ErrorStatus setRotation(double r) { m_rotation = r; return Acad::eOk; }
    // Block coordinates to world: position, rotation about Z, scale, less the block's origin.
    AcGeMatrix3d blockTransform() const;

    // Takes ownership of the attribute.
    Acad::ErrorStatus appendAttribute(AcDbObjectId& id, AcDbAttribute* attribute);
    Acad::ErrorStatus appendAttribute(AcDbAttribute* attribute);
    // Attribute ids in order (for a reference in a database).
    const std::vector<AcDbObjectId>& attributeIds() const { return m_attributes; }
    // Attributes still held by a reference outside a database.
    const std::vector<std::unique_ptr<AcDbAttribute>>& pendingAttributes() const { return m_pending; }

    Acad::ErrorStatus getGeomExtents(AcDbExtents& extents) const override;
    // Moves the attributes with the reference.
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& m) override;
    // The block's entities (attribute definitions left out) placed by the block transform, and
    // the attribute values as texts.
    Acad::ErrorStatus explode(AcDbVoidPtrArray& entities) const override;

protected:
    void subErase(bool erasing) override;
    void subAddedToDatabase(AcDbDatabase* db) override;

private:
    AcGePoint3d blockOrigin() const;
    template <class F>
    void forEachAttribute(AcDb::OpenMode mode, F&& f) const;

    AcDbObjectId m_block;
    AcGePoint3d m_position;
    AcGeScale3d m_scale;
    double m_rotation = 0.0;
    std::vector<AcDbObjectId> m_attributes;
    std::vector<std::unique_ptr<AcDbAttribute>> m_pending;
};
