#pragma once
// The frame component: the inner frame of a sheet, drawn side by side with its own lines.

#include "module/components/IASComponentInterface.h"

namespace XimoGis::AssemblySchemes {

class CASComponent_Frame : public IASComponentInterface {
public:
    CASComponent_Frame();
};

}  // namespace XimoGis::AssemblySchemes
