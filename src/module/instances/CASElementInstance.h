#pragma once
// One catalog element placed on a drawn scheme: the entities that were inserted for one catalog
// item, with the element's identity, its catalog item, the type provider that drew it and its
// position number. Like the sheet it keeps nothing outside the drawing: its data lives as
// attribute values on each of its entities and is read back from them.
//
// The element's framework GUID is the id of the sheet that owns it, so that its entities are found
// with the sheet. Written onto every entity of the element:
//   ASElementId, ASElementTypeId, ASElementCatalogId, Guid (in that order), then EntityType 512;
//   "AS_ELEMENT_POSNUM" (integer), the position number;
//   ASElementIgnore (integer, 1 for ignored) and, for an ignored element that shows another
//   element's number, "AS_ELEMENT_REFERRED" (text), the id of that element.
// One entity, the data holder, also carries "AS_ELEMENT_DATAHOLDER" = 1; the element-wide values
// (number, ignore mark, referred element) are read from it.

#include "module/instances/CASAudit.h"

#include "framework/cad/CXimoCEntityPtr.h"
#include "framework/topology/CEntity.h"
#include "host/base/AcArray.h"

#include <string>

namespace XimoGis::AssemblySchemes {

class CASInstance;

class CASElementInstance : public Topology::CEntity {
public:
    static constexpr const wchar_t* kDataHolderAttribute = L"AS_ELEMENT_DATAHOLDER";
    static constexpr const wchar_t* kPositionAttribute = L"AS_ELEMENT_POSNUM";
    static constexpr const wchar_t* kReferredAttribute = L"AS_ELEMENT_REFERRED";

    // A new element: framework entity kind 8 and a fresh GUID as element id.
    CASElementInstance();
    CASElementInstance(const CASElementInstance&) = delete;
    CASElementInstance& operator=(const CASElementInstance&) = delete;

    const std::wstring& GetElementId() const { return m_elementId; }
    void SetElementId(const wchar_t* id) { m_elementId = id ? id : L""; }
    const std::wstring& GetCatalogId() const { return m_catalogId; }
    void SetCatalogId(const wchar_t* id) { m_catalogId = id ? id : L""; }
    // Empty for an element drawn from its catalog blocks rather than by a type provider.
    const std::wstring& GetTypeProviderId() const { return m_typeProviderId; }
    void SetTypeProviderId(const wchar_t* id) { m_typeProviderId = id ? id : L""; }
    // The sheet that owns the element; null for an element on no sheet.
    CASInstance* GetSchemeInstance() const { return m_pScheme; }
    void SetSchemeInstance(CASInstance* scheme) { m_pScheme = scheme; }

    // All of the element's entities, each once.
    AcDbObjectIdArray* GetObjects() { return &m_objects; }
    const AcDbObjectIdArray* GetObjects() const { return &m_objects; }
    // Adds the ids that are not there yet. While the data holder is unknown, the first added
    // entity that carries the data holder mark becomes it: callers mark one entity first.
    void AddElementEntities(const AcDbObjectIdArray& ids);

    // Writes the identity attributes and the element entity type onto every entity; entities that
    // cannot be opened for writing are skipped.
    void Serialize();
    // Takes one entity whose ASElementId names this element: catalog and provider ids when
    // present, the data holder when still unknown, and the id unless it is there already. Wrong
    // attribute types go to the audit when one is given.
    void DeserializeEntity(CXimoCEntityPtr& entity, CASAudit* audit = nullptr);

    // Marks the entity as the holder of the element-wide data. An entity open for reading only is
    // opened for writing for the write and given back for reading afterwards.
    static void MarkAsDataHolder(CXimoCEntityPtr& entity);
    static void MarkAsDataHolder(const AcDbObjectId& id);

    // Writes the number onto every entity; -1 marks the element ignored (keeping its referred
    // element), any other number clears the mark.
    void SetElementNumber(int number);
    // An ignored element shows the number of the element it refers to (followed through further
    // ignored elements), -1 when there is none on the sheet or the references go round in a
    // circle; any other element its own number from the data holder, -1 when unreadable.
    int GetElementNumber() const;
    // 1 when the data holder's ignore mark is 1, and for an element without a data holder.
    int IsElementIgnored() const;
    // Writes the ignore mark (1 or 0) onto every entity; with the mark set and a referred element
    // given, also the referred element's id, which is removed otherwise.
    void SetElementAsIgnored(int ignore, const wchar_t* referredElement);
    // The id of the element whose number an ignored element shows, from the data holder (from
    // the first entity that has one when the holder is unknown); empty when there is none.
    std::wstring GetReferredElement() const;

    // The data holder entity; null until known.
    AcDbObjectId GetEntityHolder() const override { return m_dataHolder; }
    AcDbObjectId GetId() const override { return m_dataHolder; }

    // The box around all entities; 0 when no entity gives extents.
    int GetExtents(AcDbExtents& extents) override;
    // The outline of that box as a polygon; null without extents.
    std::unique_ptr<geos::geom::Geometry> GetGeosGeometry() override;
    // Highlights every entity (mode non-zero) or ends the highlight; 0 without entities.
    int Mark(int mode, void* data) override;
    // A check mark over the centre of the element, as large as its smaller side; 0 without extents.
    int DrawCheckMark() override;
    // <asElement id="..." catalog="..." provider="..." number="..." ignored="0|1" referred="..."
    //  entities="..."/>
    std::wstring GetXML() override;
    // Writes the identity attributes again, as Serialize does; 0 without entities.
    int WriteDataAsEED() const override;

private:
    void WriteIdentity() const;
    int ReadHolderInt(const std::wstring& name, int fallback) const;

    std::wstring m_elementId;
    std::wstring m_catalogId;
    AcDbObjectId m_dataHolder;
    AcDbObjectIdArray m_objects;
    std::wstring m_typeProviderId;
    CASInstance* m_pScheme = nullptr;
};

}  // namespace XimoGis::AssemblySchemes
