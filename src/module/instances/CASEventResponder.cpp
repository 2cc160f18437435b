#include "module/instances/CASEventResponder.h"

#include "module/instances/CASInstanceStorage.h"
#include "module/manager/CASManager.h"

namespace XimoGis::AssemblySchemes {

int CASEventResponder::OnBeforeDeleteSystem(CGisSystem* /*system*/) {
    DeleteASInstances();
    return 1;
}

int CASEventResponder::OnBeforeSystemEntitiesDeleted(CGisSystem* /*system*/) {
    DeleteASInstances();
    return 1;
}

void CASEventResponder::DeleteASInstances() { CASManager::Instance()->GetASIStorage()->Clear(); }

}  // namespace XimoGis::AssemblySchemes
