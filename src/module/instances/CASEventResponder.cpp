#include "module/instances/CASEventResponder.h"

#include "module/instances/CASInstanceStorage.h"
#include "module/manager/CASManager.h"

#include "framework/cad/CXimoCDocLock.h"
#include "host/input/acedGraphics.h"

#include <vector>

namespace XimoGis::AssemblySchemes {

int CASEventResponder::OnBeforeDeleteSystem(CGisSystem* /*system*/) {
    DeleteASInstances();
    return 1;
}

int CASEventResponder::OnBeforeSystemEntitiesDeleted(CGisSystem* /*system*/) {
    DeleteASInstances();
    return 1;
}

void CASEventResponder::DeleteASInstances() {
    [[maybe_unused]] CXimoCDocLock lock;
    const boost::shared_ptr<CASInstanceStorage>& storage = CASManager::Instance()->GetASIStorage();
    storage->Clear();
    storage->ReloadInstanceStorage(nullptr);
    std::vector<boost::shared_ptr<CASInstance>> instances;
    for (const auto& [guid, instance] : storage->GetASRegistry()) instances.push_back(instance);
    for (const auto& instance : instances) {
        instance->DeleteGraphics();
        storage->DeleteASInstance(instance);
    }
    acedUpdateDisplay();
}

}  // namespace XimoGis::AssemblySchemes
