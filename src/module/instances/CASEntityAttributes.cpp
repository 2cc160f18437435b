#include "module/instances/CASEntityAttributes.h"

#include "framework/cad/CXimoCEntityPtr.h"
#include "framework/data/CDDCache.h"
#include "framework/data/CDataRW.h"

namespace XimoGis::AssemblySchemes {

using Data::CDataBox;
using Data::CDataRW;
using Data::CDDCache;

namespace {

const wchar_t* TypeName(CDataBox::Type type) {
    switch (type) {
        case CDataBox::Type::Integer: return L"an integer";
        case CDataBox::Type::Double: return L"a real number";
        case CDataBox::Type::Text: return L"text";
        case CDataBox::Type::Null: break;
    }
    return L"nothing";
}

// The stored value when it is present and of one of the wanted types; a value of another type
// is reported and counts as absent.
bool ReadTyped(const AcDbEntity* entity, const std::wstring& name, CDataBox::Type wanted, CDataBox::Type alsoFine,
               CDataBox& value, CASAudit* audit) {
    CDataBox stored;
    if (!CDataRW::Read(entity, name, stored)) return false;
    if (stored.GetType() == wanted || stored.GetType() == alsoFine) {
        value = stored;
        return true;
    }
    if (audit) {
        audit->Add(aacWrongAttributeType, entity->objectId(),
                   L"attribute " + name + L" holds " + TypeName(stored.GetType()) + L" (\"" + stored.AsString() +
                       L"\") where " + TypeName(wanted) + L" belongs; read as absent");
    }
    return false;
}

}  // namespace

bool CASEntityAttributes::ReadInt(const AcDbEntity* entity, const std::wstring& name, int& value, CASAudit* audit) {
    CDataBox stored;
    if (!ReadTyped(entity, name, CDataBox::Type::Integer, CDataBox::Type::Integer, stored, audit)) return false;
    value = stored.AsInt();
    return true;
}

bool CASEntityAttributes::ReadInt(const AcDbEntity* entity, int attributeId, int& value, CASAudit* audit) {
    return ReadInt(entity, CDDCache::GetAttributeName(attributeId), value, audit);
}

bool CASEntityAttributes::ReadDouble(const AcDbEntity* entity, int attributeId, double& value, CASAudit* audit) {
    CDataBox stored;
    if (!ReadTyped(entity, CDDCache::GetAttributeName(attributeId), CDataBox::Type::Double, CDataBox::Type::Integer,
                   stored, audit))
        return false;
    value = stored.AsDouble();
    return true;
}

bool CASEntityAttributes::ReadText(const AcDbEntity* entity, const std::wstring& name, std::wstring& value,
                                   CASAudit* audit) {
    CDataBox stored;
    if (!ReadTyped(entity, name, CDataBox::Type::Text, CDataBox::Type::Text, stored, audit)) return false;
    value = stored.AsString();
    return true;
}

bool CASEntityAttributes::ReadText(const AcDbEntity* entity, int attributeId, std::wstring& value, CASAudit* audit) {
    return ReadText(entity, CDDCache::GetAttributeName(attributeId), value, audit);
}

bool CASEntityAttributes::ReadInt(AcDbObjectId id, const std::wstring& name, int& value) {
    CXimoCEntityPtr entity(id, AcDb::kForRead);
    return entity && ReadInt(entity.get(), name, value);
}

bool CASEntityAttributes::ReadText(AcDbObjectId id, const std::wstring& name, std::wstring& value) {
    CXimoCEntityPtr entity(id, AcDb::kForRead);
    return entity && ReadText(entity.get(), name, value);
}

}  // namespace XimoGis::AssemblySchemes
