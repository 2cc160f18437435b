#include "CWorkspaceCommand.h"

#include "framework/config/CModuleConfiguration.h"
#include "framework/demo/CDemoWorkspace.h"
#include "framework/systems/CSystemManager.h"
#include "framework/topology/CNetworkImport.h"
#include "framework/topology/CTopologyMultiStorage.h"
#include "framework/workspace/CWorkspaceBuilder.h"
#include "host/base/AcString.h"
#include "module/catalog/CASDemoElements.h"

namespace XimoGis::Asch {

using System::CSystemManager;

namespace {

std::string Utf8(const std::wstring& text) { return acutWcharToUtf8(text); }

// Opens the configuration and the systems of a workspace; false with the reason on the console.
bool OpenWorkspace(const std::wstring& folder, CAschConsole& console, int& code) {
    std::wstring error;
    if (!CModuleConfiguration::Instance()->Open(folder, error) ||
        !CSystemManager::Instance()->OpenWorkspace(folder, error)) {
        code = console.Fail(error);
        return false;
    }
    return true;
}

}  // namespace

void CWorkspaceCommand::DescribeArguments(CAschArguments& arguments) const {
    arguments.AddPositional("action", "init, import or info").AddPositional("folder", "the workspace folder");
    arguments.AddOptions()("demo", "init: build the demo workspace")(
        "source", boost::program_options::value<std::string>()->value_name("SRC"),
        "init: build from the sources in this folder (workspace.xml, systems.xml, network/)")(
        "system", boost::program_options::value<int>()->value_name("ID"), "import: the system's id")(
        "nodes", boost::program_options::value<std::string>()->value_name("FILE"), "import: the nodes, GeoJSON")(
        "sections", boost::program_options::value<std::string>()->value_name("FILE"), "import: the sections, GeoJSON");
}

int CWorkspaceCommand::Run(const CAschArguments& arguments, CAschConsole& console) const {
    const std::string action = Utf8(arguments.GetText("action"));
    if (action == "init") return Init(arguments, console);
    if (action == "import") return Import(arguments, console);
    if (action == "info") return Info(arguments, console);
    console.Fail("unknown action '" + action + "' (init, import or info)");
    return kExitUsage;
}

int CWorkspaceCommand::Init(const CAschArguments& arguments, CAschConsole& console) {
    const bool demo = arguments.GetValues().count("demo") > 0;
    std::wstring source = arguments.GetText("source");
    if (demo && !source.empty()) {
        console.Fail(std::string("--demo and --source exclude each other"));
        return kExitUsage;
    }
    const std::wstring folder = arguments.GetText("folder");
    std::wstring error;
    using AssemblySchemes::CASDemoElements;
    const std::vector<Workspace::CWorkspaceBuilder::Step> elements = {
        [](const std::wstring& built, std::wstring& e) {
            return CASDemoElements::InstallPlugins(acutUtf8ToWchar(XIMO_PLUGIN_DIR), built, e);
        },
        &CASDemoElements::WriteBlockFiles,
    };
    const bool built = demo ? Demo::CDemoWorkspace::Build(folder, error, elements)
                            : Workspace::CWorkspaceBuilder::Build(folder, source, {}, error);
    if (!built) return console.Fail(error);
    console.Out() << "workspace written to " << Utf8(folder) << '\n';
    return kExitOk;
}

int CWorkspaceCommand::Import(const CAschArguments& arguments, CAschConsole& console) {
    const auto& values = arguments.GetValues();
    if (!values.count("system") || arguments.GetText("nodes").empty() || arguments.GetText("sections").empty()) {
        console.Fail(std::string("import needs --system, --nodes and --sections"));
        return kExitUsage;
    }
    int code = kExitOk;
    if (!OpenWorkspace(arguments.GetText("folder"), console, code)) return code;
    const int id = values["system"].as<int>();
    const System::CGisSystem* system = CSystemManager::Instance()->GetSystemById(id);
    if (!system) return console.Fail("the workspace has no system " + std::to_string(id));
    std::wstring error;
    if (!Topology::CNetworkImport::Import(*system, arguments.GetText("nodes"), arguments.GetText("sections"), error))
        return console.Fail(error);
    const auto* topology = Topology::CTopologyMultiStorage::Instance()->GetTopology(id);
    if (!topology) return console.Fail(Topology::CTopologyMultiStorage::Instance()->GetLastError());
    console.Out() << "system " << id << ": " << topology->GetNodes().size() << " nodes, "
                  << topology->GetSections().size() << " sections imported\n";
    return kExitOk;
}

int CWorkspaceCommand::Info(const CAschArguments& arguments, CAschConsole& console) {
    int code = kExitOk;
    if (!OpenWorkspace(arguments.GetText("folder"), console, code)) return code;
    auto* manager = CSystemManager::Instance();
    console.Out() << "workspace " << Utf8(CModuleConfiguration::Instance()->GetWorkspaceName()) << " ("
                  << Utf8(manager->GetWorkspacePath()) << ")\n";
    for (const auto& system : manager->GetSystems()->GetSystemList()) {
        const auto* topology = Topology::CTopologyMultiStorage::Instance()->GetTopology(system.get());
        if (!topology) return console.Fail(Topology::CTopologyMultiStorage::Instance()->GetLastError());
        console.Out() << "system " << system->GetSystemId() << " \"" << Utf8(system->GetName()) << "\", topology type "
                      << system->GetTopologyType() << (system.get() == manager->GetActiveSystem() ? ", active" : "")
                      << ": " << system->GetLayers().size() << " layers, " << topology->GetNodes().size() << " nodes, "
                      << topology->GetSections().size() << " sections\n";
        for (const Data::enmDataTarget target : {Data::enmDataTarget::Node, Data::enmDataTarget::Section}) {
            for (const Data::CDataDefinition* definition : topology->GetDataConfiguration().GetDefinitions(target)) {
                console.Out() << "  " << Utf8(definition->GetId()) << "  " << Utf8(definition->GetName())
                              << (definition->GetUnit().empty() ? "" : " [" + Utf8(definition->GetUnit()) + "]")
                              << (definition->IsNumeric() ? ", numeric" : "") << '\n';
            }
        }
    }
    return kExitOk;
}

}  // namespace XimoGis::Asch
