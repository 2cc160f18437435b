#include "CManholeCommand.h"

#include "framework/config/CModuleConfiguration.h"
#include "framework/data/CManholeManager.h"
#include "framework/manholescheme/CMSManager.h"
#include "framework/systems/CSystemManager.h"
#include "framework/topology/CTopologyMultiStorage.h"
#include "framework/workspace/CWsManager.h"
#include "host/base/AcString.h"
#include "host/svg/AcSvgRenderer.h"

namespace XimoGis::Asch {

namespace {

bool EndsWith(const std::wstring& text, const std::wstring& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

}  // namespace

void CManholeCommand::DescribeArguments(CAschArguments& arguments) const {
    arguments.AddPositional("folder", "the workspace folder").AddPositional("node", "the node's name or GUID");
    arguments.AddOutput("the drawing to write: .dxf, or else an SVG picture");
    arguments.AddOptions()("system", boost::program_options::value<int>()->value_name("ID"),
                           "the system of the node (the active one when not given)")(
        "scale", boost::program_options::value<double>()->value_name("S")->default_value(0.02),
        "drawing millimetres per millimetre of the manhole (0.02 is 1:50)");
}

int CManholeCommand::Run(const CAschArguments& arguments, CAschConsole& console) const {
    const std::wstring folder = arguments.GetText("folder");
    std::wstring error;
    auto* systems = System::CSystemManager::Instance();
    if (!CModuleConfiguration::Instance()->Open(folder, error) || !systems->OpenWorkspace(folder, error))
        return console.Fail(error);
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

}  // namespace XimoGis::Asch
