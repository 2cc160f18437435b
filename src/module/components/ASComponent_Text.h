#pragma once
// The text component: one line of text typed into the definition or taken from the node's data.
// The only type of which a definition may hold several.

#include "module/components/IASComponentInterface.h"

namespace XimoGis::AssemblySchemes {

class CASComponent_Text : public IASComponentInterface {
public:
    CASComponent_Text();
};

}  // namespace XimoGis::AssemblySchemes
