#include "module/components/ASComponent_BOM.h"

namespace XimoGis::AssemblySchemes {

CASComponent_BOM::CASComponent_BOM()
    : IASComponentInterface(L"04BOM", eASComponentBOM, 9472, 9472, L"IDI_AS_BOM", 0, L"") {}

}  // namespace XimoGis::AssemblySchemes
