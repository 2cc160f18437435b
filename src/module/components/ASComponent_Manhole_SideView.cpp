#include "module/components/ASComponent_Manhole_SideView.h"

namespace XimoGis::AssemblySchemes {

CASComponent_Manhole_SideView::CASComponent_Manhole_SideView()
    : IASComponentInterface(L"05MANH_S", eASComponentManholeSideView, 9944, 9944, L"IDI_MS_CROSSSECTION", 0,
                            L"01SCHEME") {}

}  // namespace XimoGis::AssemblySchemes
