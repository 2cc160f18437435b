#include "module/components/ASComponent_MiniScheme.h"

namespace XimoGis::AssemblySchemes {

CASComponent_MiniScheme::CASComponent_MiniScheme()
    : IASComponentInterface(L"02MINISCHEME", eASComponentMiniScheme, 9493, 9493, L"IDI_AS_MSCHEME", 0, L"") {}

}  // namespace XimoGis::AssemblySchemes
