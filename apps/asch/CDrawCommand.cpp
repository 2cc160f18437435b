#include "CDrawCommand.h"

#include "CSchemeDrawing.h"

#include "host/base/AcString.h"
#include "module/editor/CASEditor.h"
#include "module/instances/CASInstance.h"
#include "module/instances/CASInstanceStorage.h"
#include "module/manager/CASManager.h"

namespace XimoGis::Asch {

namespace po = boost::program_options;
using AssemblySchemes::CASEditor;
using AssemblySchemes::CASManager;

void CDrawCommand::DescribeArguments(CAschArguments& arguments) const {
    arguments.AddWorkspace().AddDrawingOption();
    arguments.AddOptions()("definition", po::value<std::string>()->value_name("ID"),
                           "id or name of the scheme definition")(
        "node", po::value<std::string>()->value_name("NODE"), "GUID or name of the node (default: none)")(
        "at", po::value<std::string>()->value_name("X,Y"), "lower-left corner of the sheet");
}

int CDrawCommand::Run(const CAschArguments& arguments, CAschConsole& console) const {
    const auto& values = arguments.GetValues();
    if (!values.count("definition")) return console.Fail(std::string("no definition given (--definition ID)"));
    AcGePoint3d at;
    std::string usage;
    if (!arguments.GetPoint("at", at, usage)) return console.Fail(usage);

    CSchemeDrawing drawing;
    std::wstring error;
    if (!drawing.Open(arguments.GetWorkspace(), arguments.GetDrawing(), error)) return console.Fail(error);
    auto* definition = drawing.FindDefinition(arguments.GetText("definition"), error);
    if (!definition) return console.Fail(error);
    boost::shared_ptr<Topology::CNode> node;
    if (values.count("node") && !(node = drawing.FindNode(arguments.GetText("node"), error)))
        return console.Fail(error);

    CASEditor* editor = CASEditor::Instance();
    const auto sheet = editor->Draw(at, definition, node.get());
    if (!sheet) return console.Fail(std::string("the sheet could not be drawn"));
    sheet->Serialize(drawing.GetSystem());
    CASManager::Instance()->GetASIStorage()->AddASInstance(sheet);
    editor->SetLayer(sheet->GetThirdGeneralEntity(), drawing.GetSystem(), L"SCHEME");
    if (!drawing.Save(error)) return console.Fail(error);
    console.Out() << "drew scheme " << acutWcharToUtf8(sheet->GetGuid()) << " into "
                  << acutWcharToUtf8(drawing.GetFileName()) << '\n';
    return kExitOk;
}

}  // namespace XimoGis::Asch
