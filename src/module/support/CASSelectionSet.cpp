#include "module/support/CASSelectionSet.h"

#include "host/input/acdbAdsName.h"
#include "host/input/acedSelectionSet.h"

namespace XimoGis::AssemblySchemes {

CASSelectionSet::CASSelectionSet(const AcDbObjectIdArray& ids) {
    ads_name_clear(m_set);
    for (const AcDbObjectId& id : ids) {
        ads_name entity;
        if (acdbGetAdsName(entity, id) != Acad::eOk) continue;
        acedSSAdd(entity, ads_name_nil(m_set) ? nullptr : m_set, m_set);
    }
}

CASSelectionSet::~CASSelectionSet() {
    if (!ads_name_nil(m_set)) acedSSFree(m_set);
}

}  // namespace XimoGis::AssemblySchemes
