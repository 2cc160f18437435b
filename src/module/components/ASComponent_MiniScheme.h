#pragma once
// The mini scheme component: a small sketch of the node with its sections, the one type whose
// room on the sheet is sized from its own settings.

#include "module/components/IASComponentInterface.h"

namespace XimoGis::AssemblySchemes {

class CASComponent_MiniScheme : public IASComponentInterface {
public:
    CASComponent_MiniScheme();
};

}  // namespace XimoGis::AssemblySchemes
