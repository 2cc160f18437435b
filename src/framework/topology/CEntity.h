#pragma once
// Base of every framework entity that other modules keep and find by GUID: network nodes and
// sections, and the modules' own things drawn for them (scheme sheets, scheme elements). An
// entity has a GUID and a kind; what it draws, where it is and how it writes itself are the
// business of the class that derives from it, so the operations below do nothing by default.

#include "framework/repository/enmEntityType.h"
#include "host/database/AcDbExtents.h"
#include "host/database/AcDbObjectId.h"
#include "host/geometry/AcGePoint3d.h"

#include <geos/geom/Geometry.h>

#include <memory>
#include <string>

namespace XimoGis::Topology {

class CEntity {
public:
    // A new entity gets a new GUID.
    explicit CEntity(enmEntityType type = etUndefined);
    virtual ~CEntity() = default;

    const std::wstring& GetGuid() const { return m_guid; }
    void SetGuid(const std::wstring& guid) { m_guid = guid; }
    enmEntityType GetEntityType() const { return m_entityType; }
    void SetEntityType(enmEntityType type) { m_entityType = type; }

    // The drawing entity that stands for this one, and the one that holds its data; null when
    // it has none (network entities live in the workspace store, not in a drawing).
    virtual AcDbObjectId GetId() const { return AcDbObjectId(); }
    virtual AcDbObjectId GetEntityHolder() const { return GetId(); }
    // The data holder's handle in upper-case hexadecimal; empty without one.
    virtual std::wstring GetHandle();
    // <entity guid="..." type="..."/>; classes with more to tell write their own element.
    virtual std::wstring GetXML();
    // The entity's geometry, owned by the caller; null when it has none.
    virtual std::unique_ptr<geos::geom::Geometry> GetGeosGeometry();
    // Highlights (mode non-zero) or unhighlights the entity; `data` is the caller's. 0 when nothing
    // was done.
    virtual int Mark(int mode, void* data);
    // Moves the entity so that its reference point lies at `point`; 0 when it cannot move.
    virtual int MoveTo(const AcGePoint3d& point);
    virtual int DrawCheckMark();
    // Writes the entity's identity onto its drawing entities; 0 when it has none.
    virtual int WriteDataAsEED() const;
    // The extents of what the entity drew; 0 when it drew nothing.
    virtual int GetExtents(AcDbExtents& extents);

private:
    std::wstring m_guid;
    enmEntityType m_entityType;
};

}  // namespace XimoGis::Topology
