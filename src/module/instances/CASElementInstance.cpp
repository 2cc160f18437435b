#include "module/instances/CASElementInstance.h"

#include "framework/utility/CUtility.h"

namespace XimoGis::AssemblySchemes {

CASElementInstance::CASElementInstance() : m_elementId(Utility::CUtility::CreateGUID()) {}

}  // namespace XimoGis::AssemblySchemes
