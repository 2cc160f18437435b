#include "framework/demo/CDemoWorkspace.h"

#include "framework/demo/CDemoCatalog.h"
#include "framework/demo/CDemoTitleBlocks.h"
#include "framework/workspace/CWorkspaceBuilder.h"

namespace XimoGis::Demo {

bool CDemoWorkspace::Build(const std::wstring& folder, std::wstring& error,
                           const std::vector<Workspace::CWorkspaceBuilder::Step>& moreSteps) {
    using Workspace::CWorkspaceBuilder;
    std::vector<CWorkspaceBuilder::Step> steps = {
        &CDemoCatalog::Import,
        [](const std::wstring& built, std::wstring& e) { return CDemoTitleBlocks::Write(built + L"install/symbol", e); },
    };
    steps.insert(steps.end(), moreSteps.begin(), moreSteps.end());
    return CWorkspaceBuilder::Build(folder, CWorkspaceBuilder::GetDemoSourceFolder(), steps, error);
}

}  // namespace XimoGis::Demo
