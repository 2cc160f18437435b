#include "CManholeCommand.h"

#include "CAschWorkspace.h"

#include "CSchemeDrawing.h"

#include "framework/config/CModuleConfiguration.h"
#include "framework/data/CManholeManager.h"
#include "framework/manholescheme/CMSManager.h"
#include "framework/systems/CSystemManager.h"
#include "framework/topology/CTopologyMultiStorage.h"
#include "framework/workspace/CWsManager.h"
#include "host/base/AcString.h"
#include "host/input/AcEdInputScript.h"
#include "host/svg/AcSvgRenderer.h"
#include "module/editor/CASEditor.h"
#include "module/instances/CASInstance.h"

namespace XimoGis::Asch {

namespace {

bool EndsWith(const std::wstring& text, const std::wstring& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

}  // namespace

void CManholeCommand::DescribeArguments(CAschArguments& arguments) const {
    namespace po = boost::program_options;
    arguments.AddPositional("folder", "the workspace folder (standalone views)", false)
        .AddPositional("node", "the node's name or GUID (standalone views)", false);
    arguments.AddOptions()("output,o", po::value<std::string>()->value_name("PATH"),
                           "the drawing to write: .dxf, or else an SVG picture (standalone views)")(
        "system", po::value<int>()->value_name("ID"), "the system of the node (the active one when not given)")(
        "scale", po::value<double>()->value_name("S")->default_value(0.02),
        "drawing millimetres per millimetre of the manhole (0.02 is 1:50)")(
        "workspace", po::value<std::string>()->value_name("W"), "the workspace folder (view on a sheet)")(
        "drawing", po::value<std::string>()->value_name("D.dxf"), "the drawing with the sheet")(
        "scheme", po::value<std::string>()->value_name("ID"), "the scheme sheet whose node's manhole is drawn")(
        "side", "the side view")("top", "the top view")(
        "at", po::value<std::string>()->value_name("X,Y"), "where the middle of the view goes");
}

int CManholeCommand::Run(const CAschArguments& arguments, CAschConsole& console) const {
    if (arguments.GetValues().count("drawing")) return RunOnScheme(arguments, console);
    if (arguments.GetText("folder").empty()) return console.Fail(std::string("no folder given"));
    if (arguments.GetText("node").empty()) return console.Fail(std::string("no node given"));
    if (arguments.GetOutput().empty()) return console.Fail(std::string("no output given (-o PATH)"));
    const std::wstring folder = arguments.GetText("folder");
    std::wstring error;
    auto* systems = System::CSystemManager::Instance();
    if (!OpenAschWorkspace(folder, error)) return console.Fail(error);
    const auto& values = arguments.GetValues();
    System::CGisSystem* system =
        values.count("system") ? systems->GetSystemById(values["system"].as<int>()) : systems->GetActiveSystem();
    if (!system) return console.Fail(std::string("the workspace has no such system, or none is active"));
    auto* storages = Topology::CTopologyMultiStorage::Instance();
    const Topology::CTopologyStorage* topology = storages->GetTopology(system);
    if (!topology) return console.Fail(storages->GetLastError());
    const std::wstring wanted = arguments.GetText("node");
    const Topology::CNode* node = topology->GetNodeByGuid(wanted);
    if (!node) node = topology->GetNodeByName(wanted);
    if (!node) return console.Fail(L"system \"" + system->GetName() + L"\" has no node \"" + wanted + L"\"");

    AcDbDatabase db;
    acdbHostApplicationServices()->setWorkingDatabase(&db);
    auto* manholes = ManholeScheme::CMSManager::Instance();
    auto front = manholes->GetComponentById(ManholeScheme::CMSManager::kFrontViewId);
    auto top = manholes->GetComponentById(ManholeScheme::CMSManager::kTopViewId);
    const double scale = values["scale"].as<double>();
    front->GetProperties()->GetProperty(L"MSMS_SCALE")->SetHiddenValue(scale);
    top->GetProperties()->GetProperty(L"MSMS_SCALE")->SetHiddenValue(scale);
    AcDbObjectIdArray ids;
    const auto side = Data::CManholeManager::DrawFrontView(node, front.get(), ids);
    // The top view goes to the right of the side view, 6 m of the manhole apart.
    const auto plan = side == Data::mdrDrawn
                          ? Data::CManholeManager::DrawTopView(node, top.get(), ids, AcGePoint3d(6000.0 * scale, 0, 0))
                          : side;
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    if (side == Data::mdrNoManhole) {
        const std::wstring message = CModuleConfiguration::GetMsg(9968) + L"'" + node->GetName() + L"'";
        Workspace::CWsManager::LogMessage(4, message, node->GetGuid());
        return console.Fail(message);
    }
    if (side != Data::mdrDrawn || plan != Data::mdrDrawn) return console.Fail(CModuleConfiguration::GetMsg(9965));

    const std::wstring output = arguments.GetOutput();
    AcSvgOptions picture;
    picture.margin = 60.0;  // labels measured narrower than the picture's font draws them stay inside
    const Acad::ErrorStatus written = EndsWith(output, L".dxf")
                                          ? db.dxfOut(output.c_str(), &error)
                                          : acdbWriteSvgFile(db, picture, output.c_str(), &error);
    if (written != Acad::eOk) return console.Fail(error);
    console.Out() << "wrote " << acutWcharToUtf8(output) << ": " << ids.length() << " entities\n";
    return kExitOk;
}

int CManholeCommand::RunOnScheme(const CAschArguments& arguments, CAschConsole& console) const {
    const auto& values = arguments.GetValues();
    if (arguments.GetWorkspace().empty()) return console.Fail(std::string("no workspace given (--workspace W)"));
    if (values.count("side") == values.count("top")) return console.Fail(std::string("give either --side or --top"));
    if (!values.count("scheme")) return console.Fail(std::string("no scheme given (--scheme ID)"));
    AcGePoint3d at;
    std::string usage;
    if (!arguments.GetPoint("at", at, usage)) return console.Fail(usage);
    CSchemeDrawing drawing;
    std::wstring error;
    if (!drawing.Open(arguments.GetWorkspace(), arguments.GetDrawing(), error)) return console.Fail(error);
    const auto scheme = drawing.FindScheme(arguments.GetText("scheme"), error);
    if (!scheme) return console.Fail(error);
    // The user selects the sheet by a point on it, then places the view.
    AcGePoint3d base;
    scheme->GetBasePoint(base);
    acedInputScript()->addPick(base + AcGeVector3d(scheme->GetWidth() / 2.0, scheme->GetHeight() / 2.0, 0.0));
    acedInputScript()->addPick(at);
    auto* log = Workspace::CWsManager::Instance();
    const std::size_t logged = log->GetMessages().size();
    if (!AssemblySchemes::CASEditor::Instance()->DrawManholeView(values.count("side") ? 1 : 0)) {
        const auto& messages = log->GetMessages();
        return console.Fail(messages.size() > logged ? messages.back().text
                                                      : L"the sheet's definition has no manhole view component, or "
                                                        L"the sheet has no node of the network");
    }
    if (!drawing.Save(error)) return console.Fail(error);
    console.Out() << "drew the manhole " << (values.count("side") ? "side" : "top") << " view into "
                  << acutWcharToUtf8(drawing.GetFileName()) << '\n';
    return kExitOk;
}

}  // namespace XimoGis::Asch
