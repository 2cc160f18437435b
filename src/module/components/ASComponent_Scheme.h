#pragma once
// The scheme component: the area of the sheet where the node's elements are placed. Unlike the
// other types, its drawn entities are not stamped with the sheet's entity type.

#include "module/components/IASComponentInterface.h"

namespace XimoGis::AssemblySchemes {

class CASComponent_Scheme : public IASComponentInterface {
public:
    CASComponent_Scheme();
    int WriteEntityType() const override { return 0; }
};

}  // namespace XimoGis::AssemblySchemes
