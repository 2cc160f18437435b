#include "CAschWorkspace.h"

#include "framework/config/CModuleConfiguration.h"
#include "framework/systems/CSystemManager.h"

namespace XimoGis::Asch {

bool OpenAschWorkspace(const std::wstring& folder, std::wstring& error) {
    return CModuleConfiguration::Instance()->Open(folder, error) &&
           System::CSystemManager::Instance()->OpenWorkspace(folder, error);
}

}  // namespace XimoGis::Asch
