#pragma once
// A drawn scheme sheet: the definition it was drawn from, the network node it belongs to, its
// base point and size, the entities each component drew and the elements placed on it. It keeps
// nothing of its own outside the drawing: everything is written as attribute values onto its
// entities (Serialize) and rebuilt from them when a drawing is scanned (DeserializeEntity, fed by
// the instance storage).
//
// The sheet's id is its framework GUID: written as the Guid attribute onto every entity of the
// sheet and its elements, and the key of the instance storage.
//
// General entities (internal tags 1, 2, 4) carry, in this order: SystemId, Guid, ASDefinitionId,
// ASInternalTag, EntityType 256, ASRefNode (only when not empty), ASWidth, ASHeight.
// Component entities (tag 8) carry: SystemId, Guid, ASInternalTag, ASComponentId, then EntityType
// 256 when the component type stamps its entities (WriteEntityType()). Elements write their own
// attributes (CASElementInstance).

#include "module/instances/CASAudit.h"
#include "module/instances/CASElementInstance.h"

#include "framework/cad/CXimoCEntityPtr.h"
#include "framework/topology/CEntity.h"
#include "host/base/AcArray.h"
#include "host/geometry/AcGePoint3d.h"

#include <boost/shared_ptr.hpp>

#include <map>
#include <memory>
#include <string>

namespace XimoGis::System {
class CGisSystem;
}

namespace XimoGis::AssemblySchemes {

class CASInstance : public Topology::CEntity {
public:
    // What an entity of the sheet is, written with it as ASInternalTag.
    enum enmInternalTag {
        eBasePointEntity = 1,  // the point at the base point (lower-left corner of the sheet)
        eSecondGeneralEntity = 2,
        eThirdGeneralEntity = 4,
        eComponentEntity = 8,  // drawn by a component
    };
    // Both ordered by their ordinal key: elements by element id, component lists by component id.
    using ElementMap = std::map<std::wstring, boost::shared_ptr<CASElementInstance>>;
    using ComponentEntities = std::map<std::wstring, std::unique_ptr<AcDbObjectIdArray>>;

    // A new sheet with a new GUID, at the origin, of no size, with no entities.
    CASInstance();
    CASInstance(const CASInstance&) = delete;
    CASInstance& operator=(const CASInstance&) = delete;
    ~CASInstance() override;

    const std::wstring& GetInstanceId() const { return GetGuid(); }
    const std::wstring& GetDefinitionId() const { return m_definitionId; }
    void SetDefinitionId(const wchar_t* id) { m_definitionId = id ? id : L""; }
    // The GUID of the network node the sheet was drawn for; empty for none.
    const std::wstring& GetRefNode() const { return m_refNode; }
    void SetRefNode(const wchar_t* node) { m_refNode = node ? node : L""; }
    void GetBasePoint(AcGePoint3d& point) const { point = m_basePoint; }
    void SetBasePoint(const AcGePoint3d& point) { m_basePoint = point; }
    // Paper size in drawing units.
    double GetWidth() const { return m_width; }
    void SetWidth(double width) { m_width = width; }
    double GetHeight() const { return m_height; }
    void SetHeight(double height) { m_height = height; }

    // The general entities; their meaning beyond the base point is the drawing editor's.
    AcDbObjectId GetId() const override { return m_basePointEntity; }
    AcDbObjectId GetEntityHolder() const override { return m_basePointEntity; }
    void SetBasePointEntity(AcDbObjectId id) { m_basePointEntity = id; }
    AcDbObjectId GetSecondGeneralEntity() const { return m_secondEntity; }
    void SetSecondGeneralEntity(AcDbObjectId id) { m_secondEntity = id; }
    AcDbObjectId GetThirdGeneralEntity() const { return m_thirdEntity; }
    void SetThirdGeneralEntity(AcDbObjectId id) { m_thirdEntity = id; }
    // Whether a scan found the definition id and size on one of the general entities.
    bool HasGeneralData() const { return m_generalDataRead != 0; }

    // Writes the general attributes onto the three general entities, then the component
    // attributes onto every component's entities in component-id order. Nothing is written
    // without a system; entities that cannot be opened for writing are skipped.
    void Serialize(System::CGisSystem* system);
    // Feeds one entity of the drawing that carries this sheet's Guid: an entity of another type
    // than 256 goes to the element its ASElementId names (made on first sight); a sheet entity is
    // sorted by its internal tag. General data is taken once, from the first general entity that
    // has it. What cannot be read goes to the audit when one is given.
    void DeserializeEntity(CXimoCEntityPtr& entity, enmEntityType type, System::CGisSystem* system,
                           CASAudit* audit = nullptr);

    // Appends the ids to the component's list, made on first use.
    void AddDrawnByComponent(const wchar_t* componentId, const AcDbObjectIdArray& ids);
    // The component's list; null when it drew nothing.
    const AcDbObjectIdArray* GetDrawnEntitiesByComponent(const wchar_t* componentId) const;
    const ComponentEntities& GetComponentEntities() const { return m_drawnByComponent; }
    // Empties `out`, then appends the three general entities (null ids included), every
    // component's entities in component-id order and every element's entities in element-id
    // order; returns 1. The second argument changes nothing.
    int GetDrawnEntities(AcDbObjectIdArray& out, int = 0) const;

    // Makes an element of the entities, numbers it (an element of the same catalog item lends its
    // number, else the largest number plus 1), writes it onto its entities and keeps it. Mark the
    // element's data holder entity before.
    boost::shared_ptr<CASElementInstance> CreateElementInstance(const wchar_t* typeProviderId, const wchar_t* catalogId,
                                                                const AcDbObjectIdArray& entities);
    // Removes this very element (found by identity): OnBeforeASElementDeleted is raised first,
    // then the element is dropped and, when asked, its entities are erased. 0 for no element or
    // a sheet without elements; 1 otherwise, also when the element is not on this sheet.
    int RemoveElementInstance(boost::shared_ptr<CASElementInstance> element, int eraseEntities);
    boost::shared_ptr<CASElementInstance> GetElementInstanceById(const wchar_t* id) const;
    const ElementMap& GetElementInstances() const { return m_elements; }
    // The largest element number, at least 0.
    int GetMaxPositionNumber() const;

    // Erases the sheet's entities: components' first, then the general entities, then the
    // elements'. The instance keeps its lists.
    void DeleteGraphics();

    // The sheet rectangle from the base point; null for a sheet without size.
    std::unique_ptr<geos::geom::Geometry> GetGeosGeometry() override;
    // Moves every entity of the sheet so that the base point comes to `point`; 0 when nothing moved.
    int MoveTo(const AcGePoint3d& point) override;
    // Highlights (mode non-zero) or unhighlights every entity of the sheet; 0 when none was found.
    int Mark(int mode, void* data) override;
    // A check mark in the middle of the sheet, about a quarter of its smaller side across; 0 for a
    // sheet without size or without a drawing to draw into.
    int DrawCheckMark() override;
    // <asInstance guid definition node x y z width height><component id entities/>...
    // <asElement .../>...</asInstance>
    std::wstring GetXML() override;
    // Writes the sheet's Guid onto its general and component entities and lets every element
    // write its identity; 0 for a sheet without entities.
    int WriteDataAsEED() const override;

private:
    void WriteGeneralInternalData(const AcDbObjectId& id, System::CGisSystem* system, enmInternalTag tag);
    void WriteComponentInternalData(const AcDbObjectIdArray* ids, System::CGisSystem* system,
                                    const wchar_t* componentId);
    void ReadInternalGeneralData(CXimoCEntityPtr& entity, CASAudit* audit);
    void DeserializeElementEntity(CXimoCEntityPtr& entity, CASAudit* audit);
    void DeserializeSheetEntity(CXimoCEntityPtr& entity, CASAudit* audit);

    std::wstring m_definitionId;
    std::wstring m_refNode;
    AcGePoint3d m_basePoint;
    double m_width = 0.0;
    double m_height = 0.0;
    ElementMap m_elements;
    AcDbObjectId m_basePointEntity;
    AcDbObjectId m_secondEntity;
    AcDbObjectId m_thirdEntity;
    int m_generalDataRead = 0;
    ComponentEntities m_drawnByComponent;
};

}  // namespace XimoGis::AssemblySchemes
