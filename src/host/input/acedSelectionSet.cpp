#include "host/input/acedSelectionSet.h"

#include <algorithm>
#include <map>
#include <vector>

#include "host/database/AcDbObjectId.h"
#include "host/input/acdbAdsName.h"

namespace {
using Members = std::vector<AcDbObjectId>;

struct SelectionSets {
    std::map<std::int64_t, Members> sets;
    std::int64_t lastNumber = 0;
};

SelectionSets& table() {
    static SelectionSets t;
    return t;
}

Members* find(const ads_name ss) {
    if (!ss || ss[1] != kAcEdSelectionSetTag) return nullptr;
    const auto found = table().sets.find(ss[0]);
    return found == table().sets.end() ? nullptr : &found->second;
}

bool entityId(const ads_name ename, AcDbObjectId& id) {
    return acdbGetObjectId(id, ename) == Acad::eOk && id.isValid();
}
}  // namespace

int acedSSAdd(const ads_name ename, const ads_name ss, ads_name result) {
    if (!result) return RTERROR;
    AcDbObjectId id;
    const bool hasEntity = !ads_name_nil(ename);
    if (hasEntity && !entityId(ename, id)) return RTERROR;
    if (ads_name_nil(ss)) {
        if (static_cast<int>(table().sets.size()) >= kAcEdMaxSelectionSets) return RTERROR;
        const std::int64_t number = ++table().lastNumber;
        Members& members = table().sets[number];
        if (hasEntity) members.push_back(id);
        result[0] = number;
        result[1] = kAcEdSelectionSetTag;
        return RTNORM;
    }
    Members* members = find(ss);
    if (!members) return RTERROR;
    if (hasEntity && std::find(members->begin(), members->end(), id) == members->end()) members->push_back(id);
    ads_name_set(ss, result);
    return RTNORM;
}

int acedSSDel(const ads_name ename, const ads_name ss) {
    Members* members = find(ss);
    AcDbObjectId id;
    if (!members || acdbGetObjectId(id, ename) != Acad::eOk) return RTERROR;
    const auto found = std::find(members->begin(), members->end(), id);
    if (found == members->end()) return RTERROR;
    members->erase(found);
    return RTNORM;
}

int acedSSFree(const ads_name ss) {
    if (!find(ss)) return RTERROR;
    table().sets.erase(ss[0]);
    return RTNORM;
}

int acedSSLength(const ads_name ss, Adesk::Int32* length) {
    const Members* members = find(ss);
    if (!members || !length) return RTERROR;
    *length = static_cast<Adesk::Int32>(members->size());
    return RTNORM;
}

int acedSSName(const ads_name ss, Adesk::Int32 index, ads_name entity) {
    const Members* members = find(ss);
    if (!members || !entity || index < 0 || static_cast<std::size_t>(index) >= members->size()) return RTERROR;
    ads_name name;
    if (acdbGetAdsName(name, (*members)[static_cast<std::size_t>(index)]) != Acad::eOk) return RTERROR;
    ads_name_set(name, entity);
    return RTNORM;
}

int acedSSMemb(const ads_name ename, const ads_name ss) {
    const Members* members = find(ss);
    AcDbObjectId id;
    if (!members || acdbGetObjectId(id, ename) != Acad::eOk) return RTERROR;
    return std::find(members->begin(), members->end(), id) != members->end() ? RTNORM : RTERROR;
}

int acedSSOpenCount() { return static_cast<int>(table().sets.size()); }
