#pragma once
// The info table component: the title block of the sheet, a block with filled attributes.

#include "module/components/IASComponentInterface.h"

namespace XimoGis::AssemblySchemes {

class CASComponent_InfoTable : public IASComponentInterface {
public:
    CASComponent_InfoTable();
};

}  // namespace XimoGis::AssemblySchemes
