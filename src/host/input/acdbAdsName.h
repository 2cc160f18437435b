#pragma once
// Entity names (ads_name) and object ids. An entity name is the object's id in another form,
// valid as long as the object's database lives. Selection-set names are told apart by their
// second word (kAcEdSelectionSetTag), which is 0 for entity names.

#include <cstdint>

#include "host/base/AcadTypes.h"
#include "host/base/resbuf.h"

class AcDbObjectId;

constexpr std::int64_t kAcEdSelectionSetTag = 0x5353;  // "SS"

inline void ads_name_clear(ads_name name) { name[0] = name[1] = 0; }
inline bool ads_name_nil(const ads_name name) { return !name || (name[0] == 0 && name[1] == 0); }
inline void ads_name_set(const ads_name from, ads_name to) { to[0] = from[0]; to[1] = from[1]; }
inline bool ads_name_equal(const ads_name a, const ads_name b) { return a[0] == b[0] && a[1] == b[1]; }

// eNullObjectId for a null id (the name is cleared).
Acad::ErrorStatus acdbGetAdsName(ads_name& name, AcDbObjectId id);
// eNullObjectId for a nil name, eInvalidInput for a selection-set name.
Acad::ErrorStatus acdbGetObjectId(AcDbObjectId& id, const ads_name name);
