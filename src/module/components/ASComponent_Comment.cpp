#include "module/components/ASComponent_Comment.h"

namespace XimoGis::AssemblySchemes {

CASComponent_Comment::CASComponent_Comment()
    : IASComponentInterface(L"01CMMNT", eASComponentComment, 4761, 4761, L"IDI_TEXT", 0, L"01SCHEME") {}

}  // namespace XimoGis::AssemblySchemes
