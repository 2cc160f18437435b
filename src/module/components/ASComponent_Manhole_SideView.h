#pragma once
// The manhole side view component: the settings of a manhole's cross-section placed on a
// scheme, under the scheme component.

#include "module/components/IASComponentInterface.h"

namespace XimoGis::AssemblySchemes {

class CASComponent_Manhole_SideView : public IASComponentInterface {
public:
    CASComponent_Manhole_SideView();
    int IsInteractive() const override { return 1; }
};

}  // namespace XimoGis::AssemblySchemes
