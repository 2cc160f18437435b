#include "framework/data/CDataRW.h"

#include "framework/data/CDDCache.h"
#include "framework/data/CDataDefinition.h"
#include "framework/topology/CNetworkEntity.h"
#include "host/database/AcDbDatabase.h"

namespace XimoGis::Data {

namespace {
bool toXData(const CDataBox& value, AcDbXDataValue& out) {
    switch (value.GetType()) {
        case CDataBox::Type::Integer: out = AcDbXDataValue::int32(value.AsInt()); return true;
        case CDataBox::Type::Double: out = AcDbXDataValue::real(value.AsDouble()); return true;
        case CDataBox::Type::Text: out = AcDbXDataValue::string(value.AsString()); return true;
        case CDataBox::Type::Null: return false;
    }
    return false;
}

CDataBox fromXData(const AcDbXDataValue& v) {
    if (const auto* i = std::get_if<Adesk::Int32>(&v.value)) return CDataBox(static_cast<int>(*i));
    if (const auto* s = std::get_if<Adesk::Int16>(&v.value)) return CDataBox(static_cast<int>(*s));
    if (const auto* d = std::get_if<double>(&v.value)) return CDataBox(*d);
    if (const auto* t = std::get_if<std::wstring>(&v.value)) return CDataBox(*t);
    return CDataBox();
}

// Index of the name item of the attribute in the application's values; -1 when absent.
int find(const std::vector<AcDbXDataValue>& values, const std::wstring& name) {
    for (std::size_t i = 0; i + 1 < values.size(); i += 2) {
        const auto* key = std::get_if<std::wstring>(&values[i].value);
        if (key && *key == name) return static_cast<int>(i);
    }
    return -1;
}
}  // namespace

bool CDataRW::Write(AcDbEntity* entity, const std::wstring& attributeName, const CDataBox& value) {
    if (!entity || attributeName.empty() || !entity->isWriteEnabled()) return false;
    if (AcDbDatabase* db = entity->database()) db->registerApplication(kApplication);
    const AcDbXDataApp* existing = entity->xDataFor(kApplication);
    AcDbXDataApp data = existing ? *existing : AcDbXDataApp{kApplication, {}};
    const int at = find(data.values, attributeName);
    AcDbXDataValue item;
    if (!toXData(value, item)) {
        if (at < 0) return true;
        data.values.erase(data.values.begin() + at, data.values.begin() + at + 2);
    } else if (at >= 0) {
        data.values[static_cast<std::size_t>(at) + 1] = item;
    } else {
        data.values.push_back(AcDbXDataValue::string(attributeName));
        data.values.push_back(item);
    }
    return entity->setXData(data) == Acad::eOk;
}

bool CDataRW::Write(AcDbEntity* entity, int attributeId, const CDataBox& value) {
    return Write(entity, CDDCache::GetAttributeName(attributeId), value);
}

bool CDataRW::Write(AcDbObjectId id, const std::wstring& attributeName, const CDataBox& value) {
    AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForWrite);
    return entity && Write(entity.object(), attributeName, value);
}

bool CDataRW::Write(AcDbObjectId id, int attributeId, const CDataBox& value) {
    return Write(id, CDDCache::GetAttributeName(attributeId), value);
}

bool CDataRW::Read(const AcDbEntity* entity, const std::wstring& attributeName, CDataBox& value) {
    if (!entity || attributeName.empty()) return false;
    const AcDbXDataApp* data = entity->xDataFor(kApplication);
    if (!data) return false;
    const int at = find(data->values, attributeName);
    if (at < 0) return false;
    value = fromXData(data->values[static_cast<std::size_t>(at) + 1]);
    return true;
}

bool CDataRW::Read(const AcDbEntity* entity, int attributeId, CDataBox& value) {
    return Read(entity, CDDCache::GetAttributeName(attributeId), value);
}

bool CDataRW::Read(AcDbObjectId id, const std::wstring& attributeName, CDataBox& value) {
    AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForRead);
    return entity && Read(entity.object(), attributeName, value);
}

bool CDataRW::Read(AcDbObjectId id, int attributeId, CDataBox& value) {
    return Read(id, CDDCache::GetAttributeName(attributeId), value);
}

bool CDataRW::Read(const Topology::CNetworkEntity* entity, const CDataDefinition* definition, CDataBox& value) {
    value.SetNull();
    if (!entity || !definition) return false;
    const enmDataTarget target = entity->GetEntityType() == etSection ? enmDataTarget::Section : enmDataTarget::Node;
    if (definition->GetTarget() != target) return false;
    if (definition->GetColumn() == L"name") {
        if (!entity->GetName().empty()) value = CDataBox(entity->GetName());
    } else if (const CDataBox* stored = entity->GetValue(definition->GetColumn())) {
        value = *stored;
        definition->Coerce(value);
    }
    return true;
}

}  // namespace XimoGis::Data
