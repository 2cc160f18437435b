#pragma once
// Base of every drawable object: layer, colour, linetype, and the geometric operations.

#include <string>

#include "host/base/AcArray.h"
#include "host/database/AcDbExtents.h"
#include "host/database/AcDbObject.h"
#include "host/geometry/AcGeMatrix3d.h"

class AcDbEntity : public AcDbObject {
public:
    // Layer by name. In a database the layer must exist (eKeyNotFound otherwise); an entity not yet
    // in a database keeps the name, and a missing layer is created when the entity is added.
    const std::wstring& layer() const { return m_layer; }
    Acad::ErrorStatus setLayer(const ACHAR* name);
    AcDbObjectId layerId() const;

    // Colour index 0..256: 256 is by layer, 0 by block.
    Adesk::UInt16 colorIndex() const { return m_color; }
    Acad::ErrorStatus setColorIndex(Adesk::UInt16 color);

    // Linetype by name ("ByLayer", "Continuous", "DASHDOT"...). In a database a standard linetype
    // is loaded when missing; an unknown one fails with eKeyNotFound.
    const std::wstring& linetype() const { return m_linetype; }
    Acad::ErrorStatus setLinetype(const ACHAR* name);
    double linetypeScale() const { return m_linetypeScale; }
    void setLinetypeScale(double scale) { m_linetypeScale = scale; }

    // Copies layer, colour and linetype from another entity.
    void setPropertiesFrom(const AcDbEntity& other);

    virtual Acad::ErrorStatus getGeomExtents(AcDbExtents& extents) const = 0;
    virtual Acad::ErrorStatus transformBy(const AcGeMatrix3d& m) = 0;
    // A transformed copy not in any database, owned by the caller.
    virtual Acad::ErrorStatus getTransformedCopy(const AcGeMatrix3d& m, AcDbEntity*& copy) const;
    // The simpler entities this one is made of, new and owned by the caller; eNotApplicable for
    // entities that are already simple.
    virtual Acad::ErrorStatus explode(AcDbVoidPtrArray& entities) const;

protected:
    // The extents of what explode() gives; empty when it gives nothing.
    AcDbExtents explodedExtents() const;

    AcDbEntity() = default;
    AcDbEntity(const AcDbEntity&) = default;
    void subAddedToDatabase(AcDbDatabase* db) override;

private:
    std::wstring m_layer = L"0";
    std::wstring m_linetype = L"ByLayer";
    Adesk::UInt16 m_color = AcDb::kColorByLayer;
    double m_linetypeScale = 1.0;
};
