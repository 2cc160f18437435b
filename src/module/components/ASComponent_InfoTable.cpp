#include "module/components/ASComponent_InfoTable.h"

namespace XimoGis::AssemblySchemes {

CASComponent_InfoTable::CASComponent_InfoTable()
    : IASComponentInterface(L"03INFOTABLE", eASComponentInfoTable, 1300, 1300, L"IDI_AS_INFOTABLE", 0, L"") {}

}  // namespace XimoGis::AssemblySchemes
