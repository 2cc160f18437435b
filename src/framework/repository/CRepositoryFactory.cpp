#include "framework/repository/CRepositoryFactory.h"

#include "framework/repository/CDefinitionRepository.h"

namespace XimoGis {

void CRepositoryFactory::FreeRepositoryMemory(CDefinitionRepository* repository) { delete repository; }

CRepositoryItemFactory* CRepositoryFactory::GetRepositoryItemFactory(CDefinitionRepository* /*repository*/) {
    return nullptr;
}

std::wstring CRepositoryFactory::GetRepositoryDescription() { return {}; }

}  // namespace XimoGis
