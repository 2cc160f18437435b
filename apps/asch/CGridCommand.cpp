#include "CGridCommand.h"

#include "CSchemeDrawing.h"

#include "host/base/AcString.h"
#include "host/input/AcEdInputScript.h"
#include "module/editor/CASEditor.h"
#include "module/instances/CASInstanceStorage.h"
#include "module/manager/CASManager.h"

#include <optional>
#include <sstream>

namespace XimoGis::Asch {

namespace po = boost::program_options;
using AssemblySchemes::CASEditor;

void CGridCommand::DescribeArguments(CAschArguments& arguments) const {
    arguments.AddWorkspace().AddDrawingOption();
    arguments.AddOptions()("definition", po::value<std::string>()->value_name("ID"),
                           "id or name of the scheme definition")(
        "nodes", po::value<std::string>()->value_name("A,B,..."), "the nodes, by GUID or name, one sheet each")(
        "all-nodes", "one sheet for every node of the active system's network")(
        "rows", po::value<int>()->value_name("R")->default_value(1), "rows of the grid")(
        "columns", po::value<int>()->value_name("C")->default_value(1), "sheets in a row")(
        "gap-x", po::value<double>()->value_name("GX")->default_value(10.0), "gap between columns")(
        "gap-y", po::value<double>()->value_name("GY")->default_value(10.0), "gap between rows")(
        "at", po::value<std::string>()->value_name("X,Y"), "lower-left corner of the grid (the pick)");
}

int CGridCommand::Run(const CAschArguments& arguments, CAschConsole& console) const {
    const auto& values = arguments.GetValues();
    if (!values.count("definition")) return console.Fail(std::string("no definition given (--definition ID)"));
    if (values.count("nodes") && values.count("all-nodes"))
        return console.Fail(std::string("give either --nodes or --all-nodes, not both"));
    const int rows = values["rows"].as<int>();
    const int columns = values["columns"].as<int>();
    if (rows < 1 || columns < 1) return console.Fail(std::string("--rows and --columns must be at least 1"));

    CSchemeDrawing drawing;
    std::wstring error;
    if (!drawing.Open(arguments.GetWorkspace(), arguments.GetDrawing(), error)) return console.Fail(error);
    auto* definition = drawing.FindDefinition(arguments.GetText("definition"), error);
    if (!definition) return console.Fail(error);
    CASEditor::NodeVector nodes;
    if (values.count("all-nodes") && !drawing.GetNodes(nodes, error)) return console.Fail(error);
    if (values.count("nodes")) {
        std::wistringstream list(arguments.GetText("nodes"));
        std::wstring name;
        while (std::getline(list, name, L',')) {
            const auto node = drawing.FindNode(name, error);
            if (!node) return console.Fail(error);
            nodes.push_back(node);
        }
    }
    std::optional<AcGePoint3d> at;
    std::string usage;
    if (!arguments.GetPoint("at", at, usage)) return console.Fail(usage);
    if (at) acedInputScript()->addPick(*at);

    const bool withNodes = values.count("nodes") || values.count("all-nodes");
    const std::size_t before = AssemblySchemes::CASManager::Instance()->GetASIStorage()->GetASRegistry().size();
    if (!CASEditor::Instance()->Draw(definition, rows, columns, values["gap-x"].as<double>(),
                                     values["gap-y"].as<double>(), withNodes ? &nodes : nullptr))
        return console.Fail(std::string("cancelled: no base point was picked (--at X,Y); nothing was drawn"));
    if (!drawing.Save(error)) return console.Fail(error);
    const std::size_t after = AssemblySchemes::CASManager::Instance()->GetASIStorage()->GetASRegistry().size();
    console.Out() << "drew " << after - before << " scheme sheet(s) into " << acutWcharToUtf8(drawing.GetFileName())
                  << '\n';
    return kExitOk;
}

}  // namespace XimoGis::Asch
