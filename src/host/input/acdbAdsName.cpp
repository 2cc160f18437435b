#include "host/input/acdbAdsName.h"

#include "host/database/AcDbDatabase.h"

Acad::ErrorStatus acdbGetAdsName(ads_name& name, AcDbObjectId id) {
    ads_name_clear(name);
    if (id.isNull()) return Acad::eNullObjectId;
    // As in the host, the name carries the address of the object's record in its database.
    name[0] = static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(AcDbDatabase::stubOf(id)));
    return Acad::eOk;
}

Acad::ErrorStatus acdbGetObjectId(AcDbObjectId& id, const ads_name name) {
    id.setNull();
    if (ads_name_nil(name)) return Acad::eNullObjectId;
    if (name[1] != 0) return Acad::eInvalidInput;
    id = AcDbDatabase::idOf(reinterpret_cast<AcDbStub*>(static_cast<std::intptr_t>(name[0])));
    return Acad::eOk;
}
