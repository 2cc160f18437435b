#pragma once
// A selection set of the host holding given entities, as the host's drag functions take them;
// freed when the object goes, so that a command cannot run out of sets.

#include "host/base/AcArray.h"
#include "host/base/resbuf.h"
#include "host/database/AcDbObjectId.h"

namespace XimoGis::AssemblySchemes {

class CASSelectionSet {
public:
    // The entities that have an entity name, in their order; null ids are passed over.
    explicit CASSelectionSet(const AcDbObjectIdArray& ids);
    ~CASSelectionSet();
    CASSelectionSet(const CASSelectionSet&) = delete;
    CASSelectionSet& operator=(const CASSelectionSet&) = delete;

    // The set's name; nil when no entity could be added.
    const ads_name& Get() const { return m_set; }

private:
    ads_name m_set;
};

}  // namespace XimoGis::AssemblySchemes
