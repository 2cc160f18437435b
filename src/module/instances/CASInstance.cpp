#include "module/instances/CASInstance.h"

#include "module/components/IASComponentInterface.h"
#include "module/instances/CASEntityAttributes.h"
#include "module/manager/CASManager.h"
#include "module/support/ASFunctionTrace.h"
#include "module/support/CASCheckMark.h"
#include "module/support/CASEntityGroup.h"

#include "framework/data/CDDCache.h"
#include "framework/data/CDataBox.h"
#include "framework/data/CDataRW.h"
#include "framework/data/CXmlText.h"
#include "framework/systems/CGisSystem.h"
#include "framework/utility/CTransform.h"
#include "framework/utility/CUtility.h"
#include "host/entities/AcDbPoint.h"

#include <boost/make_shared.hpp>

#include <algorithm>

namespace XimoGis::AssemblySchemes {

using Data::CDataBox;
using Data::CDataRW;
using Data::CDDCache;

namespace {

constexpr const wchar_t* kTraceFile = L"AssemblySchemes_Instance";
// Drawn by the user on a sheet; a known component although the manager does not register it.
constexpr const wchar_t* kDimensionComponentId = L"00DIM";

bool IsKnownComponent(const std::wstring& id) {
    return id == kDimensionComponentId || CASManager::Instance()->GetASComponentById(id.c_str());
}

std::wstring Number(double value) { return CDataBox(value).AsString(); }

}  // namespace

CASInstance::CASInstance() : Topology::CEntity(etAssemblyScheme) {}

CASInstance::~CASInstance() {
    // Elements may outlive the sheet in their holders' hands; they must not reach back.
    for (auto& [id, element] : m_elements) element->SetSchemeInstance(nullptr);
}

void CASInstance::Serialize(System::CGisSystem* system) {
    AS_FUNCTION_TRACE(kTraceFile, L"XimoGis::AssemblySchemes::CASInstance::Serialize");
    WriteGeneralInternalData(m_basePointEntity, system, eBasePointEntity);
    WriteGeneralInternalData(m_secondEntity, system, eSecondGeneralEntity);
    WriteGeneralInternalData(m_thirdEntity, system, eThirdGeneralEntity);
    for (const auto& [componentId, ids] : m_drawnByComponent)
        WriteComponentInternalData(ids.get(), system, componentId.c_str());
}

void CASInstance::WriteGeneralInternalData(const AcDbObjectId& id, System::CGisSystem* system, enmInternalTag tag) {
    if (!system) return;
    CXimoCEntityPtr entity(id, AcDb::kForWrite);
    if (!entity) return;
    CDataRW::Write(entity.get(), CDDCache::GetSystemId(), system->GetSystemId());
    CDataRW::Write(entity.get(), CDDCache::GetGuid(), GetGuid());
    CDataRW::Write(entity.get(), CDDCache::GetASDefinitionId(), m_definitionId);
    CDataRW::Write(entity.get(), CDDCache::GetASInternalTag(), static_cast<int>(tag));
    CDataRW::Write(entity.get(), CDDCache::GetEntityType(), static_cast<int>(etAssemblyScheme));
    if (!m_refNode.empty()) CDataRW::Write(entity.get(), CDDCache::GetASRefNode(), m_refNode);
    CDataRW::Write(entity.get(), CDDCache::GetASWidth(), m_width);
    CDataRW::Write(entity.get(), CDDCache::GetASHeight(), m_height);
}

void CASInstance::WriteComponentInternalData(const AcDbObjectIdArray* ids, System::CGisSystem* system,
                                             const wchar_t* componentId) {
    if (!ids || !system) return;
    // A type the manager does not register answers as the base type does: stamp.
    const auto component = CASManager::Instance()->GetASComponentById(componentId);
    const int writeEntityType = component ? component->WriteEntityType() : 1;
    for (const AcDbObjectId& id : *ids) {
        CXimoCEntityPtr entity(id, AcDb::kForWrite);
        if (!entity) continue;
        CDataRW::Write(entity.get(), CDDCache::GetSystemId(), system->GetSystemId());
        CDataRW::Write(entity.get(), CDDCache::GetGuid(), GetGuid());
        CDataRW::Write(entity.get(), CDDCache::GetASInternalTag(), static_cast<int>(eComponentEntity));
        CDataRW::Write(entity.get(), CDDCache::GetASComponentId(), componentId);
        if (writeEntityType)
            CDataRW::Write(entity.get(), CDDCache::GetEntityType(), static_cast<int>(etAssemblyScheme));
    }
}

void CASInstance::DeserializeEntity(CXimoCEntityPtr& entity, enmEntityType type, System::CGisSystem* /*system*/,
                                    CASAudit* audit) {
    if (!entity) return;
    if (type != etAssemblyScheme) DeserializeElementEntity(entity, audit);
    else DeserializeSheetEntity(entity, audit);
}

void CASInstance::DeserializeElementEntity(CXimoCEntityPtr& entity, CASAudit* audit) {
    std::wstring elementId;
    if (!CASEntityAttributes::ReadText(entity.get(), CDDCache::GetASElementId(), elementId, audit)) {
        if (audit) audit->Add(aacMissingElementId, entity.objectId(), L"element entity of sheet " + GetGuid() +
                                                                          L" has no element id; skipped");
        return;
    }
    boost::shared_ptr<CASElementInstance>& element = m_elements[elementId];
    if (!element) {
        element = boost::make_shared<CASElementInstance>();
        element->SetElementId(elementId.c_str());
        element->SetGuid(GetGuid());
        element->SetSchemeInstance(this);
    }
    element->DeserializeEntity(entity, audit);
}

void CASInstance::DeserializeSheetEntity(CXimoCEntityPtr& entity, CASAudit* audit) {
    const AcDbObjectId id = entity.objectId();
    int tag = 0;
    if (!CASEntityAttributes::ReadInt(entity.get(), CDDCache::GetASInternalTag(), tag, audit)) {
        if (audit)
            audit->Add(aacMissingInternalTag, id, L"entity of sheet " + GetGuid() + L" has no internal tag; skipped");
        return;
    }
    switch (tag) {
        case eBasePointEntity:
            m_basePointEntity = id;
            if (const auto* point = dynamic_cast<const AcDbPoint*>(entity.get())) {
                m_basePoint = point->position();
            } else if (audit) {
                audit->Add(aacBasePointNotAPoint, id,
                           L"base point entity of sheet " + GetGuid() + L" is " + entity->isA() +
                               L", not a point; base point not read");
            }
            break;
        case eSecondGeneralEntity: m_secondEntity = id; break;
        case eThirdGeneralEntity: m_thirdEntity = id; break;
        case eComponentEntity: {
            std::wstring componentId;
            if (!CASEntityAttributes::ReadText(entity.get(), CDDCache::GetASComponentId(), componentId, audit)) {
                if (audit) audit->Add(aacMissingComponentId, id, L"component entity of sheet " + GetGuid() +
                                                                     L" has no component id; skipped");
                return;
            }
            if (audit && !IsKnownComponent(componentId)) {
                audit->Add(aacUnknownComponentId, id, L"component id \"" + componentId + L"\" on sheet " + GetGuid() +
                                                          L" belongs to no component type; kept under that id");
            }
            AddDrawnByComponent(componentId.c_str(), AcDbObjectIdArray{id});
            return;
        }
        default:
            if (audit) audit->Add(aacUnknownInternalTag, id, L"entity of sheet " + GetGuid() + L" has internal tag " +
                                                                  std::to_wstring(tag) + L"; skipped");
            return;
    }
    if (!m_generalDataRead) ReadInternalGeneralData(entity, audit);
}

void CASInstance::ReadInternalGeneralData(CXimoCEntityPtr& entity, CASAudit* audit) {
    const AcDbEntity* source = entity.get();
    std::wstring text;
    if (CASEntityAttributes::ReadText(source, CDDCache::GetASDefinitionId(), text, audit)) m_definitionId = text;
    if (CASEntityAttributes::ReadText(source, CDDCache::GetASRefNode(), text, audit)) m_refNode = text;
    double size = 0.0;
    if (CASEntityAttributes::ReadDouble(source, CDDCache::GetASWidth(), size, audit)) m_width = size;
    if (CASEntityAttributes::ReadDouble(source, CDDCache::GetASHeight(), size, audit)) {
        m_height = size;
        m_generalDataRead = 1;
    }
}

void CASInstance::AddDrawnByComponent(const wchar_t* componentId, const AcDbObjectIdArray& ids) {
    if (!componentId) return;
    std::unique_ptr<AcDbObjectIdArray>& list = m_drawnByComponent[componentId];
    if (!list) list = std::make_unique<AcDbObjectIdArray>();
    list->append(ids);
}

const AcDbObjectIdArray* CASInstance::GetDrawnEntitiesByComponent(const wchar_t* componentId) const {
    if (!componentId) return nullptr;
    const auto found = m_drawnByComponent.find(componentId);
    return found == m_drawnByComponent.end() ? nullptr : found->second.get();
}

int CASInstance::GetDrawnEntities(AcDbObjectIdArray& out, int) const {
    out.removeAll();
    out.append(m_basePointEntity);
    out.append(m_secondEntity);
    out.append(m_thirdEntity);
    for (const auto& [componentId, ids] : m_drawnByComponent) out.append(*ids);
    for (const auto& [elementId, element] : m_elements) out.append(*element->GetObjects());
    return 1;
}

boost::shared_ptr<CASElementInstance> CASInstance::CreateElementInstance(const wchar_t* typeProviderId,
                                                                         const wchar_t* catalogId,
                                                                         const AcDbObjectIdArray& entities) {
    AS_FUNCTION_TRACE(kTraceFile, L"XimoGis::AssemblySchemes::CASInstance::CreateElementInstance");
    auto element = boost::make_shared<CASElementInstance>();
    element->SetGuid(GetGuid());
    element->SetCatalogId(catalogId);
    element->SetTypeProviderId(typeProviderId);
    element->AddElementEntities(entities);
    element->SetElementId(Utility::CUtility::CreateGUID().c_str());
    element->SetSchemeInstance(this);

    const auto lender = std::find_if(m_elements.begin(), m_elements.end(), [&](const auto& entry) {
        return entry.first != element->GetElementId() && entry.second->GetCatalogId() == element->GetCatalogId();
    });
    const int number = lender != m_elements.end() ? lender->second->GetElementNumber() : GetMaxPositionNumber() + 1;
    element->SetElementNumber(number);
    element->Serialize();
    m_elements[element->GetElementId()] = element;
    return element;
}

int CASInstance::RemoveElementInstance(boost::shared_ptr<CASElementInstance> element, int eraseEntities) {
    AS_FUNCTION_TRACE(kTraceFile, L"XimoGis::AssemblySchemes::CASInstance::RemoveElementInstance");
    if (!element || m_elements.empty()) return 0;
    const auto found = std::find_if(m_elements.begin(), m_elements.end(),
                                    [&](const auto& entry) { return entry.second.get() == element.get(); });
    if (found == m_elements.end()) return 1;
    // Kept before the event: a listener may change the map.
    const std::wstring key = found->first;
    CASManager* manager = CASManager::Instance();
    manager->Raise_OnBeforeASElementDeleted(this, manager->GetASDefinitionById(m_definitionId.c_str()), element.get());
    m_drawnByComponent.erase(element->GetElementId());
    if (eraseEntities && !element->GetObjects()->isEmpty()) Utility::CUtility::EraseElements(*element->GetObjects());
    m_elements.erase(key);
    element->SetSchemeInstance(nullptr);
    return 1;
}

boost::shared_ptr<CASElementInstance> CASInstance::GetElementInstanceById(const wchar_t* id) const {
    if (!id) return {};
    const auto found = m_elements.find(id);
    return found == m_elements.end() ? boost::shared_ptr<CASElementInstance>() : found->second;
}

int CASInstance::GetMaxPositionNumber() const {
    int largest = 0;
    for (const auto& [id, element] : m_elements) largest = std::max(largest, element->GetElementNumber());
    return largest;
}

void CASInstance::DeleteGraphics() {
    AS_FUNCTION_TRACE(kTraceFile, L"XimoGis::AssemblySchemes::CASInstance::DeleteGraphics");
    for (const auto& [componentId, ids] : m_drawnByComponent) Utility::CUtility::EraseElements(*ids);
    Utility::CUtility::EraseElements(AcDbObjectIdArray{m_basePointEntity, m_secondEntity, m_thirdEntity});
    for (const auto& [elementId, element] : m_elements) Utility::CUtility::EraseElements(*element->GetObjects());
}

std::unique_ptr<geos::geom::Geometry> CASInstance::GetGeosGeometry() {
    if (m_width <= 0.0 || m_height <= 0.0) return nullptr;
    const AcGePoint3d& p = m_basePoint;
    const AcArray<AcGePoint3d> ring = {
        p, {p.x + m_width, p.y, p.z}, {p.x + m_width, p.y + m_height, p.z}, {p.x, p.y + m_height, p.z}};
    return Utility::CTransform::GetGeosPolygon(ring);
}

int CASInstance::MoveTo(const AcGePoint3d& point) {
    AS_FUNCTION_TRACE(kTraceFile, L"XimoGis::AssemblySchemes::CASInstance::MoveTo");
    AcDbObjectIdArray ids;
    GetDrawnEntities(ids);
    if (CASEntityGroup::Move(ids, point - m_basePoint) == 0) return 0;
    m_basePoint = point;
    return 1;
}

int CASInstance::Mark(int mode, void*) {
    AcDbObjectIdArray ids;
    GetDrawnEntities(ids);
    return CASEntityGroup::Highlight(ids, mode != 0) > 0 ? 1 : 0;
}

int CASInstance::DrawCheckMark() {
    if (m_width <= 0.0 || m_height <= 0.0) return 0;
    const AcGePoint3d centre(m_basePoint.x + m_width / 2.0, m_basePoint.y + m_height / 2.0, m_basePoint.z);
    return CASCheckMark::Draw(centre, std::min(m_width, m_height) / 2.0, CASCheckMark::kColor) > 0 ? 1 : 0;
}

std::wstring CASInstance::GetXML() {
    pugi::xml_document document;
    pugi::xml_node sheet = document.append_child("asInstance");
    Data::CXmlText::SetAttribute(sheet, "guid", GetGuid());
    Data::CXmlText::SetAttribute(sheet, "definition", m_definitionId);
    Data::CXmlText::SetAttribute(sheet, "node", m_refNode);
    Data::CXmlText::SetAttribute(sheet, "x", Number(m_basePoint.x));
    Data::CXmlText::SetAttribute(sheet, "y", Number(m_basePoint.y));
    Data::CXmlText::SetAttribute(sheet, "z", Number(m_basePoint.z));
    Data::CXmlText::SetAttribute(sheet, "width", Number(m_width));
    Data::CXmlText::SetAttribute(sheet, "height", Number(m_height));
    for (const auto& [componentId, ids] : m_drawnByComponent) {
        pugi::xml_node component = sheet.append_child("component");
        Data::CXmlText::SetAttribute(component, "id", componentId);
        Data::CXmlText::SetAttribute(component, "entities", static_cast<long>(ids->length()));
    }
    for (const auto& [elementId, element] : m_elements) {
        pugi::xml_document part;
        if (Data::CXmlText::Load(element->GetXML().c_str(), part, nullptr)) sheet.append_copy(part.first_child());
    }
    return Data::CXmlText::ToText(sheet);
}

int CASInstance::WriteDataAsEED() const {
    AcDbObjectIdArray own{m_basePointEntity, m_secondEntity, m_thirdEntity};
    for (const auto& [componentId, ids] : m_drawnByComponent) own.append(*ids);
    int written = 0;
    for (const AcDbObjectId& id : CASEntityGroup::Distinct(own)) {
        if (CDataRW::Write(id, CDDCache::GetGuid(), GetGuid())) ++written;
    }
    for (const auto& [elementId, element] : m_elements) written += element->WriteDataAsEED();
    return written > 0 ? 1 : 0;
}

}  // namespace XimoGis::AssemblySchemes
