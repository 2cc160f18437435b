#include "module/components/ASComponent_PositionLabel.h"

namespace XimoGis::AssemblySchemes {

CASComponent_PositionLabel::CASComponent_PositionLabel()
    : IASComponentInterface(L"03POS", eASComponentPositionLabel, 22336, 22336, L"IDI_LEADER", 0, L"01SCHEME") {}

}  // namespace XimoGis::AssemblySchemes
