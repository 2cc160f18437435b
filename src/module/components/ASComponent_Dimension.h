#pragma once
// The dimension component: dimensions the user places on a scheme, under the scheme component.
// The scheme manager does not register it, so it is never looked up by id and hears no events.

#include "module/components/IASComponentInterface.h"

namespace XimoGis::AssemblySchemes {

class CASComponent_Dimension : public IASComponentInterface {
public:
    CASComponent_Dimension();
    int IsInteractive() const override { return 1; }
};

}  // namespace XimoGis::AssemblySchemes
