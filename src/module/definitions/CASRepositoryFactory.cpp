#include "module/definitions/CASRepositoryFactory.h"

#include "module/definitions/CASRepository.h"

#include "framework/config/CModuleConfiguration.h"

namespace XimoGis::AssemblySchemes {

CDefinitionRepository* CASRepositoryFactory::GetRepository(const wchar_t* /*name*/) { return new CASRepository(); }

void CASRepositoryFactory::FreeRepositoryMemory(CDefinitionRepository* repository) { delete repository; }

std::wstring CASRepositoryFactory::GetRepositoryName() { return CModuleConfiguration::GetMsg(21000); }

}  // namespace XimoGis::AssemblySchemes
