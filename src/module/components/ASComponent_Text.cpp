#include "module/components/ASComponent_Text.h"

namespace XimoGis::AssemblySchemes {

CASComponent_Text::CASComponent_Text()
    : IASComponentInterface(L"05TEXT", eASComponentText, 8749, 8749, L"IDI_TEXT", 1, L"") {}

}  // namespace XimoGis::AssemblySchemes
