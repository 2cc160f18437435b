#pragma once
// The demo workspace: built from the sources shipped in "data/demo" (configuration, the water
// and sewer systems with their networks, the systems' sub-documents), with the demo catalog
// (CDemoCatalog) in its store and the title blocks (CDemoTitleBlocks) in "install/symbol/".

#include <string>

namespace XimoGis::Demo {

class CDemoWorkspace {
public:
    // Builds or replaces the demo workspace in `folder` (see Workspace::CWorkspaceBuilder: a
    // failed build leaves what was there). False with `error` naming the file and the fault.
    static bool Build(const std::wstring& folder, std::wstring& error);
};

}  // namespace XimoGis::Demo
