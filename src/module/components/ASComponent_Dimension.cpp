#include "module/components/ASComponent_Dimension.h"

namespace XimoGis::AssemblySchemes {

CASComponent_Dimension::CASComponent_Dimension()
    : IASComponentInterface(L"00DIM", eASComponentDimension, 22230, 22230, L"IDI_LINEAR_DIM", 0, L"01SCHEME") {}

}  // namespace XimoGis::AssemblySchemes
