#include "CDeleteCommand.h"

#include "CSchemeDrawing.h"

#include "module/definitions/CASDefinition.h"
#include "module/editor/CASEditor.h"
#include "module/instances/CASInstanceStorage.h"
#include "module/manager/CASManager.h"

namespace XimoGis::Asch {

namespace po = boost::program_options;
using AssemblySchemes::CASEditor;

void CDeleteCommand::DescribeArguments(CAschArguments& arguments) const {
    arguments.AddWorkspace().AddDrawingOption();
    arguments.AddOptions()("scheme", po::value<std::string>()->value_name("ID"), "the sheet with this id")(
        "definition", po::value<std::string>()->value_name("ID"), "every sheet of this definition (id or name)")(
        "all", "every sheet of the drawing");
}

int CDeleteCommand::Run(const CAschArguments& arguments, CAschConsole& console) const {
    const auto& values = arguments.GetValues();
    if (values.count("scheme") + values.count("definition") + values.count("all") != 1)
        return console.Fail(std::string("give one of --scheme ID, --definition ID or --all"));
    CSchemeDrawing drawing;
    std::wstring error;
    if (!drawing.Open(arguments.GetWorkspace(), arguments.GetDrawing(), error)) return console.Fail(error);
    const auto& registry = AssemblySchemes::CASManager::Instance()->GetASIStorage()->GetASRegistry();
    const std::size_t before = registry.size();
    CASEditor* editor = CASEditor::Instance();
    if (values.count("scheme")) {
        const auto scheme = drawing.FindScheme(arguments.GetText("scheme"), error);
        if (!scheme) return console.Fail(error);
        CASEditor::InstanceVector schemes{scheme};
        editor->DeleteASInstances(schemes);
    } else if (values.count("definition")) {
        const auto* definition = drawing.FindDefinition(arguments.GetText("definition"), error);
        if (!definition) return console.Fail(error);
        editor->DeleteASInstances(definition->GetId(), 0);
    } else {
        editor->DeleteASInstances();
    }
    if (!drawing.Save(error)) return console.Fail(error);
    console.Out() << "deleted " << before - registry.size() << " scheme sheet(s)\n";
    return kExitOk;
}

}  // namespace XimoGis::Asch
