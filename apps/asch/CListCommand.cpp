#include "CListCommand.h"

#include "CAschWorkspace.h"

#include "CSchemeListing.h"

#include "framework/systems/CSystemManager.h"
#include "host/documents/AcApDocManager.h"
#include "module/instances/CASInstanceStorage.h"
#include "module/manager/CASManager.h"

namespace XimoGis::Asch {

using AssemblySchemes::CASAudit;
using AssemblySchemes::CASManager;

void CListCommand::DescribeArguments(CAschArguments& arguments) const {
    arguments.AddDrawing();
    arguments.AddWorkspace();
    arguments.AddOptions()("system", boost::program_options::value<int>()->value_name("ID"),
                           "only the schemes of this network system (default: every system)")(
        "json", "print JSON instead of a table");
}

int CListCommand::Run(const CAschArguments& arguments, CAschConsole& console) const {
    std::wstring error;
    auto* systems = System::CSystemManager::Instance();
    if (!OpenAschWorkspace(arguments.GetWorkspace(), error)) return console.Fail(error);
    System::CGisSystem* system = nullptr;
    if (arguments.GetValues().count("system")) {
        const int id = arguments.GetValues()["system"].as<int>();
        system = systems->GetSystemById(id);
        if (!system) return console.Fail(L"the workspace has no system " + std::to_wstring(id));
    }
    const std::wstring drawing = arguments.GetDrawing();
    CASManager* manager = CASManager::Instance();
    if (acDocManager->appContextOpenDocument(drawing.c_str(), &error) != Acad::eOk) return console.Fail(error);
    AcApDocument* document = acDocManager->curDocument();

    const auto& storage = manager->GetASIStorage();
    storage->Clear();
    storage->ReloadInstanceStorage(system);
    if (arguments.GetValues().count("json"))
        CSchemeListing::PrintJson(*storage, drawing, system ? system->GetSystemId() : 0, console.Out());
    else
        CSchemeListing::PrintTable(*storage, console.Out());
    for (const auto& problem : storage->GetProblems()) {
        const std::wstring handle = CASAudit::FormatHandle(problem.handle);
        console.Warn(L"problem " + std::to_wstring(problem.code) + L" " + CASAudit::GetCodeName(problem.code) +
                     (handle.empty() ? L"" : L" at entity " + handle) + L": " + problem.message);
    }
    acDocManager->closeDocument(document);
    return kExitOk;
}

}  // namespace XimoGis::Asch
