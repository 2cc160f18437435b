#pragma once
// The module's receiver of framework notifications: when a network system, or all of its
// entities, are about to be deleted, every scheme of the current drawing is deleted, whichever
// system is going and whichever system drew the scheme. Every answer is 1, so the framework
// always goes on.

#include "framework/notification/IFrameworkEventResponder.h"

namespace XimoGis::AssemblySchemes {

class CASEventResponder : public IFrameworkEventResponder {
public:
    int OnBeforeDeleteSystem(CGisSystem* system) override;
    int OnAfterDeleteSystem() override { return 1; }
    int OnBeforeSystemEntitiesDeleted(CGisSystem* system) override;

private:
    // With the current document locked, the editor deletes every scheme of the drawing.
    static void DeleteASInstances();
};

}  // namespace XimoGis::AssemblySchemes
