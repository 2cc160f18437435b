#pragma once
// The demo workspace: built from the sources shipped in "data/demo" (configuration, the water
// and sewer systems with their networks, the systems' sub-documents), with the demo catalog
// (CDemoCatalog) in its store and the title blocks (CDemoTitleBlocks) in "install/symbol/".

#include "framework/workspace/CWorkspaceBuilder.h"

#include <string>
#include <vector>

namespace XimoGis::Demo {

class CDemoWorkspace {
public:
    // Builds or replaces the demo workspace in `folder` (see Workspace::CWorkspaceBuilder: a
    // failed build leaves what was there). False with `error` naming the file and the fault.
    // `moreSteps` run after the demo's own parts, in the folder being built: the parts that the
    // layers above the framework add (element plug-ins, element block files).
    static bool Build(const std::wstring& folder, std::wstring& error,
                      const std::vector<Workspace::CWorkspaceBuilder::Step>& moreSteps = {});
};

}  // namespace XimoGis::Demo
