#include "module/instances/CASEventResponder.h"

#include "module/editor/CASEditor.h"

#include "framework/cad/CXimoCDocLock.h"

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
    CASEditor::Instance()->DeleteASInstances();
}

}  // namespace XimoGis::AssemblySchemes
