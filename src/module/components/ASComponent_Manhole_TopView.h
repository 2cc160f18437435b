#pragma once
// The manhole top view component: the settings of a manhole's plan view placed on a scheme,
// under the scheme component.

#include "module/components/IASComponentInterface.h"

namespace XimoGis::AssemblySchemes {

class CASComponent_Manhole_TopView : public IASComponentInterface {
public:
    CASComponent_Manhole_TopView();
    int IsInteractive() const override { return 1; }
};

}  // namespace XimoGis::AssemblySchemes
