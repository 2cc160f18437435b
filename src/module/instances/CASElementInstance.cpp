#include "module/instances/CASElementInstance.h"

#include "module/instances/CASEntityAttributes.h"
#include "module/instances/CASInstance.h"
#include "module/support/CASCheckMark.h"
#include "module/support/CASEntityGroup.h"

#include "framework/data/CDDCache.h"
#include "framework/data/CDataRW.h"
#include "framework/data/CXmlText.h"
#include "framework/utility/CTransform.h"
#include "framework/utility/CUtility.h"

#include <algorithm>
#include <set>

namespace XimoGis::AssemblySchemes {

using Data::CDataBox;
using Data::CDataRW;
using Data::CDDCache;

CASElementInstance::CASElementInstance()
    : Topology::CEntity(etSchemeElement), m_elementId(Utility::CUtility::CreateGUID()) {}

void CASElementInstance::AddElementEntities(const AcDbObjectIdArray& ids) {
    for (const AcDbObjectId& id : ids) {
        if (id.isNull() || m_objects.contains(id)) continue;
        m_objects.append(id);
        int mark = 0;
        if (m_dataHolder.isNull() && CASEntityAttributes::ReadInt(id, kDataHolderAttribute, mark)) m_dataHolder = id;
    }
}

void CASElementInstance::Serialize() { WriteIdentity(); }

int CASElementInstance::WriteDataAsEED() const {
    WriteIdentity();
    return m_objects.isEmpty() ? 0 : 1;
}

void CASElementInstance::WriteIdentity() const {
    for (const AcDbObjectId& id : m_objects) {
        CXimoCEntityPtr entity(id, AcDb::kForWrite);
        if (!entity) continue;
        CDataRW::Write(entity.get(), CDDCache::GetASElementId(), m_elementId);
        CDataRW::Write(entity.get(), CDDCache::GetASElementTypeId(), m_typeProviderId);
        CDataRW::Write(entity.get(), CDDCache::GetASElementCatalogId(), m_catalogId);
        CDataRW::Write(entity.get(), CDDCache::GetGuid(), GetGuid());
        CDataRW::Write(entity.get(), CDDCache::GetEntityType(), static_cast<int>(etAssemblyElement));
    }
}

void CASElementInstance::DeserializeEntity(CXimoCEntityPtr& entity, CASAudit* audit) {
    if (!entity) return;
    std::wstring text;
    if (CASEntityAttributes::ReadText(entity.get(), CDDCache::GetASElementCatalogId(), text, audit)) m_catalogId = text;
    if (CASEntityAttributes::ReadText(entity.get(), CDDCache::GetASElementTypeId(), text, audit))
        m_typeProviderId = text;
    const AcDbObjectId id = entity.objectId();
    int value = 0;
    if (m_dataHolder.isNull() && CASEntityAttributes::ReadInt(entity.get(), kDataHolderAttribute, value, audit)) {
        m_dataHolder = id;
        // The element-wide values are read from here later; a damaged one is worth telling now.
        CASEntityAttributes::ReadInt(entity.get(), kPositionAttribute, value, audit);
        CASEntityAttributes::ReadInt(entity.get(), CDDCache::GetASElementIgnore(), value, audit);
        CASEntityAttributes::ReadText(entity.get(), kReferredAttribute, text, audit);
    }
    if (!m_objects.contains(id)) m_objects.append(id);
}

void CASElementInstance::MarkAsDataHolder(CXimoCEntityPtr& entity) {
    if (!entity) return;
    const bool readOnly = !entity.isWriteEnabled();
    if (readOnly && entity.upgradeOpen() != Acad::eOk) return;
    CDataRW::Write(entity.get(), kDataHolderAttribute, 1);
    if (readOnly) entity.downgradeOpen();
}

void CASElementInstance::MarkAsDataHolder(const AcDbObjectId& id) {
    CXimoCEntityPtr entity(id, AcDb::kForWrite);
    MarkAsDataHolder(entity);
}

void CASElementInstance::SetElementNumber(int number) {
    for (const AcDbObjectId& id : m_objects) CDataRW::Write(id, kPositionAttribute, number);
    SetElementAsIgnored(number == -1 ? 1 : 0, GetReferredElement().c_str());
}

int CASElementInstance::GetElementNumber() const {
    std::set<const CASElementInstance*> visited;
    const CASElementInstance* element = this;
    while (element->IsElementIgnored()) {
        if (!visited.insert(element).second || !element->m_pScheme) return -1;
        const auto referred = element->m_pScheme->GetElementInstanceById(element->GetReferredElement().c_str());
        if (!referred) return -1;
        element = referred.get();
    }
    return element->ReadHolderInt(kPositionAttribute, -1);
}

int CASElementInstance::IsElementIgnored() const {
    if (m_dataHolder.isNull()) return 1;
    return ReadHolderInt(CDDCache::GetAttributeName(CDDCache::GetASElementIgnore()), 0) == 1 ? 1 : 0;
}

void CASElementInstance::SetElementAsIgnored(int ignore, const wchar_t* referredElement) {
    const int mark = ignore ? 1 : 0;
    const CDataBox referred = mark && referredElement && *referredElement ? CDataBox(referredElement) : CDataBox();
    for (const AcDbObjectId& id : m_objects) {
        CXimoCEntityPtr entity(id, AcDb::kForWrite);
        if (!entity) continue;
        CDataRW::Write(entity.get(), CDDCache::GetASElementIgnore(), mark);
        CDataRW::Write(entity.get(), kReferredAttribute, referred);
    }
}

std::wstring CASElementInstance::GetReferredElement() const {
    // Written onto every entity, so an element that lost its data holder still finds it.
    const AcDbObjectIdArray sources = m_dataHolder.isNull() ? m_objects : AcDbObjectIdArray{m_dataHolder};
    std::wstring referred;
    for (const AcDbObjectId& id : sources) {
        if (CASEntityAttributes::ReadText(id, kReferredAttribute, referred)) break;
    }
    return referred;
}

int CASElementInstance::ReadHolderInt(const std::wstring& name, int fallback) const {
    int value = fallback;
    return CASEntityAttributes::ReadInt(m_dataHolder, name, value) ? value : fallback;
}

int CASElementInstance::GetExtents(AcDbExtents& extents) {
    return CASEntityGroup::GetExtents(m_objects, extents) ? 1 : 0;
}

std::unique_ptr<geos::geom::Geometry> CASElementInstance::GetGeosGeometry() {
    AcDbExtents extents;
    if (!GetExtents(extents)) return nullptr;
    const AcGePoint3d low = extents.minPoint();
    const AcGePoint3d high = extents.maxPoint();
    const AcArray<AcGePoint3d> ring = {low, {high.x, low.y, low.z}, {high.x, high.y, low.z}, {low.x, high.y, low.z}};
    return Utility::CTransform::GetGeosPolygon(ring);
}

int CASElementInstance::Mark(int mode, void*) { return CASEntityGroup::Highlight(m_objects, mode != 0) > 0 ? 1 : 0; }

int CASElementInstance::DrawCheckMark() {
    AcDbExtents extents;
    if (!GetExtents(extents)) return 0;
    const AcGeVector3d size = extents.maxPoint() - extents.minPoint();
    return CASCheckMark::Draw(extents.center(), std::min(size.x, size.y), CASCheckMark::kColor) > 0 ? 1 : 0;
}

std::wstring CASElementInstance::GetXML() {
    pugi::xml_document document;
    pugi::xml_node element = document.append_child("asElement");
    Data::CXmlText::SetAttribute(element, "id", m_elementId);
    Data::CXmlText::SetAttribute(element, "catalog", m_catalogId);
    Data::CXmlText::SetAttribute(element, "provider", m_typeProviderId);
    Data::CXmlText::SetAttribute(element, "number", static_cast<long>(GetElementNumber()));
    Data::CXmlText::SetFlag(element, "ignored", IsElementIgnored() != 0);
    const std::wstring referred = GetReferredElement();
    if (!referred.empty()) Data::CXmlText::SetAttribute(element, "referred", referred);
    Data::CXmlText::SetAttribute(element, "entities", static_cast<long>(m_objects.length()));
    return Data::CXmlText::ToText(element);
}

}  // namespace XimoGis::AssemblySchemes
