#pragma once
// Makes a workspace folder from sources (see CWorkspaceSource): the configuration, the store
// with the systems, their layers and networks, and the systems' sub-documents. The workspace is
// built in a new folder beside the target and put in its place only when it is complete, so a
// failed build leaves the old workspace as it was; building again replaces what was built before.

#include <boost/function.hpp>

#include <string>
#include <vector>

namespace XimoGis::Workspace {

class CWorkspaceBuilder {
public:
    // A further part of a workspace (a catalog, say), written into the folder being built.
    using Step = boost::function<bool(const std::wstring& folder, std::wstring& error)>;

    // The demo workspace's sources shipped with the framework.
    static std::wstring GetDemoSourceFolder();

    // Builds the workspace of `sourceFolder` into `folder`; an empty source folder makes an empty
    // workspace (a minimal workspace.xml and a store with the system tables). A `folder` that
    // holds files but no workspace.xml is not replaced. False, with `error` naming the file and
    // the fault, when anything fails.
    static bool Build(const std::wstring& folder, const std::wstring& sourceFolder, const std::vector<Step>& steps,
                      std::wstring& error);

private:
    static bool Fill(const std::wstring& folder, const std::wstring& sourceFolder, const std::vector<Step>& steps,
                     std::wstring& error);
};

}  // namespace XimoGis::Workspace
