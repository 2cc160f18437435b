#include "module/components/ASComponent_Frame.h"

namespace XimoGis::AssemblySchemes {

CASComponent_Frame::CASComponent_Frame()
    : IASComponentInterface(L"00FRAME", eASComponentFrame, 1505, 1505, L"IDI_AS_FRAME", 0, L"") {}

}  // namespace XimoGis::AssemblySchemes
