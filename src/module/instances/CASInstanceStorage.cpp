#include "module/instances/CASInstanceStorage.h"

#include "module/instances/CASEntityAttributes.h"
#include "module/support/ASFunctionTrace.h"

#include "framework/data/CDDCache.h"
#include "framework/systems/CGisSystem.h"
#include "host/database/AcDbDatabase.h"

#include <boost/make_shared.hpp>

#include <algorithm>

namespace XimoGis::AssemblySchemes {

using Data::CDDCache;

void CASInstanceStorage::AddASInstance(const boost::shared_ptr<CASInstance>& instance) {
    if (instance) m_instances[instance->GetGuid()] = instance;
}

void CASInstanceStorage::DeleteASInstance(const boost::shared_ptr<CASInstance>& instance) {
    if (instance) m_instances.erase(instance->GetGuid());
}

boost::shared_ptr<CASInstance> CASInstanceStorage::GetASInstanceById(const wchar_t* id) const {
    if (!id) return {};
    const auto found = m_instances.find(id);
    return found == m_instances.end() ? boost::shared_ptr<CASInstance>() : found->second;
}

void CASInstanceStorage::Clear() {
    m_instances.clear();
    m_audit.Clear();
}

void CASInstanceStorage::ReloadInstanceStorage(System::CGisSystem* system) {
    AS_FUNCTION_TRACE(L"AssemblySchemes_InstanceStorage",
                      L"XimoGis::AssemblySchemes::CASInstanceStorage::ReloadInstanceStorage");
    m_audit.Clear();
    const AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
    if (!database) return;
    AcDbBlockTable* table = nullptr;
    if (database->getBlockTable(table, AcDb::kForRead) != Acad::eOk) return;
    std::vector<std::wstring> seen;
    for (const AcDbObjectId& recordId : table->recordIds()) {
        AcDbBlockTableRecord* record = nullptr;
        if (acdbOpenObject(record, recordId, AcDb::kForRead) != Acad::eOk) continue;
        // A copy: feeding must not depend on the record staying as it is.
        const std::vector<AcDbObjectId> ids = record->entityIds();
        record->close();
        for (const AcDbObjectId& id : ids) {
            // Erased entities do not open.
            CXimoCEntityPtr entity(id, AcDb::kForRead);
            if (entity && !entity->isErased()) Feed(entity, system, seen);
        }
    }
    table->close();
    AuditScanned(seen);
}

void CASInstanceStorage::Feed(CXimoCEntityPtr& entity, System::CGisSystem* system, std::vector<std::wstring>& seen) {
    if (system) {
        int systemId = 0;
        if (!CASEntityAttributes::ReadInt(entity.get(), CDDCache::GetSystemId(), systemId, &m_audit) ||
            systemId != system->GetSystemId())
            return;
    }
    int type = 0;
    if (!CASEntityAttributes::ReadInt(entity.get(), CDDCache::GetEntityType(), type, &m_audit)) return;
    if (type != etAssemblyScheme && type != etAssemblyElement) return;
    std::wstring guid;
    if (!CASEntityAttributes::ReadText(entity.get(), CDDCache::GetGuid(), guid, &m_audit) || guid.empty()) {
        m_audit.Add(aacMissingGuid, entity.objectId(),
                    L"entity of type " + std::to_wstring(type) + L" names no sheet (no Guid); skipped");
        return;
    }
    boost::shared_ptr<CASInstance>& instance = m_instances[guid];
    if (!instance) {
        instance = boost::make_shared<CASInstance>();
        instance->SetGuid(guid);
    }
    if (std::find(seen.begin(), seen.end(), guid) == seen.end()) seen.push_back(guid);
    instance->DeserializeEntity(entity, static_cast<enmEntityType>(type), system, &m_audit);
}

void CASInstanceStorage::AuditScanned(const std::vector<std::wstring>& seen) {
    for (const std::wstring& guid : seen) {
        const CASInstance& instance = *m_instances[guid];
        AcDbObjectIdArray ids;
        instance.GetDrawnEntities(ids);
        AcDbObjectId first;
        for (const AcDbObjectId& id : ids) {
            if (!id.isNull()) {
                first = id;
                break;
            }
        }
        if (!instance.HasGeneralData()) {
            m_audit.Add(aacNoGeneralData, first,
                        L"sheet " + guid + L" has no general entity with its definition and size; listed without them");
        }
        for (const auto& [elementId, element] : instance.GetElementInstances()) {
            const AcDbObjectIdArray& objects = *element->GetObjects();
            const AcDbObjectId some = objects.isEmpty() ? AcDbObjectId() : objects.first();
            if (element->GetEntityHolder().isNull()) {
                m_audit.Add(aacNoDataHolder, some,
                            L"element " + elementId + L" of sheet " + guid + L" has no data holder; counts as ignored");
            } else if (element->IsElementIgnored() && element->GetElementNumber() == -1) {
                m_audit.Add(aacNoReferredNumber, element->GetEntityHolder(),
                            L"ignored element " + elementId + L" of sheet " + guid + L" refers to \"" +
                                element->GetReferredElement() + L"\", which gives no number");
            }
        }
    }
}

}  // namespace XimoGis::AssemblySchemes
