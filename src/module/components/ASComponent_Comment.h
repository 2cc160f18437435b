#pragma once
// The comment component: comments the user places on a scheme, under the scheme component.

#include "module/components/IASComponentInterface.h"

namespace XimoGis::AssemblySchemes {

class CASComponent_Comment : public IASComponentInterface {
public:
    CASComponent_Comment();
    int IsInteractive() const override { return 1; }
};

}  // namespace XimoGis::AssemblySchemes
