#pragma once
// The module's receiver of framework notifications: when a network system or all its entities
// are about to be deleted, the schemes of the current drawing go too, whichever system it is.
// Every answer is 1, so the framework always goes on.

#include "framework/notification/IFrameworkEventResponder.h"

namespace XimoGis::AssemblySchemes {

class CASEventResponder : public IFrameworkEventResponder {
public:
    int OnBeforeDeleteSystem(CGisSystem* system) override;
    int OnAfterDeleteSystem() override { return 1; }
    int OnBeforeSystemEntitiesDeleted(CGisSystem* system) override;

private:
    // Drops the schemes of the current drawing from its instance storage. Erasing their entities
    // from the drawing is the scheme editor's part.
    static void DeleteASInstances();
};

}  // namespace XimoGis::AssemblySchemes
