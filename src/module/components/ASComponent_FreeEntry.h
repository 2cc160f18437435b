#pragma once
// The free-entry component: drawing entities the user adds to a scheme, placed under the scheme
// component.

#include "module/components/IASComponentInterface.h"

namespace XimoGis::AssemblySchemes {

class CASComponent_FreeEntry : public IASComponentInterface {
public:
    CASComponent_FreeEntry();
    int IsInteractive() const override { return 1; }
};

}  // namespace XimoGis::AssemblySchemes
