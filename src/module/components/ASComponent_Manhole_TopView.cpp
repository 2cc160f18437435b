#include "module/components/ASComponent_Manhole_TopView.h"

namespace XimoGis::AssemblySchemes {

CASComponent_Manhole_TopView::CASComponent_Manhole_TopView()
    : IASComponentInterface(L"05MANH_T", eASComponentManholeTopView, 9943, 9943, L"IDI_MANHOLE_TOP", 0, L"01SCHEME") {}

}  // namespace XimoGis::AssemblySchemes
