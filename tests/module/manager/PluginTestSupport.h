#pragma once
// Tests that load the fittings plug-in take its providers out of the scheme manager again.

#include "module/manager/CASManager.h"

namespace XimoGis::AssemblySchemes::Testing {

inline const std::vector<std::wstring> kFittingsProviderIds = {
    L"FITTING_ELBOW45", L"FITTING_ELBOW90", L"FITTING_FLANGE",  L"FITTING_GATEVALVE",
    L"FITTING_HYDRANT", L"FITTING_PIPE",    L"FITTING_REDUCER", L"FITTING_TEE"};

struct FittingsRegistryCleanup {
    ~FittingsRegistryCleanup() {
        for (const auto& id : kFittingsProviderIds) CASManager::Instance()->GetAssemblyElementTypeRegistry()->erase(id);
    }
};

}  // namespace XimoGis::AssemblySchemes::Testing
