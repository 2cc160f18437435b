#pragma once
// The position label component: the settings of the elements' position numbers and leaders,
// placed under the scheme component.

#include "module/components/IASComponentInterface.h"

namespace XimoGis::AssemblySchemes {

class CASComponent_PositionLabel : public IASComponentInterface {
public:
    CASComponent_PositionLabel();
    int IsInteractive() const override { return 1; }
};

}  // namespace XimoGis::AssemblySchemes
