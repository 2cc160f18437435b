#include "module/components/ASComponent_Scheme.h"

namespace XimoGis::AssemblySchemes {

CASComponent_Scheme::CASComponent_Scheme()
    : IASComponentInterface(L"01SCHEME", eASComponentScheme, 9345, 9345, L"IDI_AS_SCHEME", 0, L"") {}

}  // namespace XimoGis::AssemblySchemes
