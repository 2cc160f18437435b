#include "module/instances/CASInstance.h"

#include "framework/utility/CUtility.h"

namespace XimoGis::AssemblySchemes {

CASInstance::CASInstance() : m_guid(Utility::CUtility::CreateGUID()) {}

}  // namespace XimoGis::AssemblySchemes
