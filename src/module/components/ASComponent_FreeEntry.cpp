#include "module/components/ASComponent_FreeEntry.h"

namespace XimoGis::AssemblySchemes {

CASComponent_FreeEntry::CASComponent_FreeEntry()
    : IASComponentInterface(L"02FREE", eASComponentFreeEntry, 9933, 9933, L"IDI_ACAD_ELEMS", 0, L"01SCHEME") {}

}  // namespace XimoGis::AssemblySchemes
