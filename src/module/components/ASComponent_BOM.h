#pragma once
// The bill of materials component: a table of the catalog elements drawn in a scheme, kept
// current as elements are inserted and deleted.

#include "module/components/IASComponentInterface.h"

namespace XimoGis::AssemblySchemes {

class CASComponent_BOM : public IASComponentInterface {
public:
    CASComponent_BOM();
};

}  // namespace XimoGis::AssemblySchemes
