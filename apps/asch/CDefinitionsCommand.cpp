#include "CDefinitionsCommand.h"

#include "CAschWorkspace.h"

#include "CDefinitionOutline.h"

#include "framework/repository/CRepositoryManager.h"
#include "framework/systems/CSystemManager.h"
#include "host/base/AcString.h"
#include "host/input/AcEdInputScript.h"
#include "module/definitions/CASDefinition.h"
#include "module/definitions/CASDefinitionFactory.h"
#include "module/definitions/CASRepository.h"
#include "module/manager/CASManager.h"

#include <cwchar>
#include <filesystem>
#include <memory>

namespace XimoGis::Asch {

namespace po = boost::program_options;
using AssemblySchemes::CASDefinition;
using AssemblySchemes::CASDefinitionEdit;
using AssemblySchemes::CASDefinitionFactory;
using AssemblySchemes::CASRepository;
using System::CGisSystem;

namespace {

std::vector<std::wstring> Texts(const CAschArguments& arguments, const char* name) {
    std::vector<std::wstring> texts;
    if (arguments.GetValues().count(name)) {
        for (const std::string& text : arguments.GetValues()[name].as<std::vector<std::string>>())
            texts.push_back(acutUtf8ToWchar(text));
    }
    return texts;
}

// A number that is the whole text; false for anything else.
bool ReadNumber(const std::wstring& text, double& value) {
    wchar_t* end = nullptr;
    value = std::wcstod(text.c_str(), &end);
    return !text.empty() && end && *end == L'\0';
}

// The field changes of the command line; false with the reason for a malformed one.
bool ReadEdit(const CAschArguments& arguments, CASDefinitionEdit& edit, std::wstring& error) {
    edit.name = arguments.GetText("name");
    for (const std::wstring& set : Texts(arguments, "set")) {
        const auto equals = set.find(L'=');
        if (equals == std::wstring::npos || equals == 0) {
            error = L"--set wants TAG=VALUE, not '" + set + L"'";
            return false;
        }
        edit.properties.emplace_back(set.substr(0, equals), set.substr(equals + 1));
    }
    for (const std::wstring& add : Texts(arguments, "add")) {
        CASDefinitionEdit::NewComponent component;
        const auto at = add.find(L'@');
        component.typeId = add.substr(0, at);
        if (at != std::wstring::npos) {
            const std::wstring offsets = add.substr(at + 1);
            const auto comma = offsets.find(L',');
            if (comma == std::wstring::npos || !ReadNumber(offsets.substr(0, comma), component.offx) ||
                !ReadNumber(offsets.substr(comma + 1), component.offy)) {
                error = L"--add wants TYPE or TYPE@X,Y, not '" + add + L"'";
                return false;
            }
        }
        edit.addedComponents.push_back(component);
    }
    edit.removedComponents = Texts(arguments, "remove");
    return true;
}

// The system named by --system, or else the active one, or else the only one that carries schemes.
CGisSystem* ChooseSystem(const CAschArguments& arguments, std::wstring& error) {
    System::CSystemManager* systems = System::CSystemManager::Instance();
    if (arguments.GetValues().count("system")) {
        const int id = arguments.GetValues()["system"].as<int>();
        CGisSystem* system = systems->GetSystemById(id);
        if (!system) error = L"the workspace has no system " + std::to_wstring(id);
        return system;
    }
    if (CGisSystem* active = systems->GetActiveSystem()) return active;
    std::vector<CGisSystem*> candidates;
    for (const auto& system : systems->GetSystems()->GetSystemList()) {
        if (system->GetTopologyType() == CGisSystem::kSchemeTopologyType) candidates.push_back(system.get());
    }
    if (candidates.size() == 1) return candidates.front();
    error = candidates.empty() ? L"the workspace has no system that carries assembly schemes"
                               : L"the workspace has several systems that carry assembly schemes; choose one "
                                 L"with --system ID";
    return nullptr;
}

// The system's scheme repository; null with the reason when its file exists but cannot be read.
CASRepository* OpenRepository(CGisSystem* system, std::wstring& error) {
    AssemblySchemes::CASManager::Instance();  // registers the repository factory
    auto* repository = dynamic_cast<CASRepository*>(
        CRepositoryManager::GetSystemRepository(system, CASRepository::kRepositoryKey, CRepositoryManager::kReload));
    if (!repository) {
        error = L"system " + std::to_wstring(system->GetSystemId()) + L" has no scheme repository";
        return nullptr;
    }
    std::error_code code;
    const std::wstring file = system->GetSubXMLPath(CASRepository::kRepositoryKey);
    const bool exists = std::filesystem::exists(acutWcharToUtf8(file), code);
    if (exists && !repository->GetLastError().empty()) {
        error = repository->GetLastError();
        return nullptr;
    }
    return repository;
}

CASDefinition* FindDefinition(CASRepository& repository, const std::wstring& reference) {
    CRepositoryItem* item = repository.GetRepositoryItemById(reference.c_str());
    if (!item) item = repository.GetRepositoryItemByName(reference.c_str());
    return dynamic_cast<CASDefinition*>(item);
}

void List(CASRepository& repository, std::ostream& out) {
    for (CRepositoryItem* item : repository.GetRepositoryItems()) {
        auto* definition = dynamic_cast<CASDefinition*>(item);
        if (!definition) continue;
        out << acutWcharToUtf8(definition->GetId()) << "  " << acutWcharToUtf8(definition->GetName()) << "  "
            << definition->GetPaperWidth() << " x " << definition->GetPaperHeight() << "  "
            << definition->GetComponents().size() << " component(s)\n";
    }
}

}  // namespace

void CDefinitionsCommand::DescribeArguments(CAschArguments& arguments) const {
    arguments.AddPositional("action", "list, show, new or edit", true);
    arguments.AddPositional("definition", "id or name of the definition (show, edit)", false);
    arguments.AddWorkspace();
    arguments.AddOptions()("system", po::value<int>()->value_name("ID"),
                           "the network system (default: the active one, or the only one with schemes)")(
        "name", po::value<std::string>()->value_name("NAME"), "new name of the definition")(
        "set", po::value<std::vector<std::string>>()->value_name("TAG=VALUE")->composing(),
        "set a sheet property, e.g. ASPW=420 (repeatable)")(
        "add", po::value<std::vector<std::string>>()->value_name("TYPE[@X,Y]")->composing(),
        "add a component of a type, e.g. 04BOM@10,20 (repeatable)")(
        "remove", po::value<std::vector<std::string>>()->value_name("INTERNAL_ID")->composing(),
        "remove a component (repeatable)")(
        "input", po::value<std::string>()->value_name("SCRIPT"),
        "the user's answers to the editor, e.g. 'text Cancel' (default: confirm)");
}

int CDefinitionsCommand::Run(const CAschArguments& arguments, CAschConsole& console) const {
    const std::string action = acutWcharToUtf8(arguments.GetText("action"));
    if (action != "list" && action != "show" && action != "new" && action != "edit")
        return console.Fail("unknown action '" + action + "'; use list, show, new or edit");
    const std::wstring reference = arguments.GetText("definition");
    if ((action == "show" || action == "edit") && reference.empty())
        return console.Fail(action + " needs the id or name of a definition");
    CASDefinitionEdit edit;
    std::wstring error;
    if (!ReadEdit(arguments, edit, error)) return console.Fail(error);

    if (!OpenAschWorkspace(arguments.GetWorkspace(), error)) return console.Fail(error);
    CGisSystem* system = ChooseSystem(arguments, error);
    if (!system) return console.Fail(error);
    CASRepository* repository = OpenRepository(system, error);
    if (!repository) return console.Fail(error);

    if (action == "list") {
        List(*repository, console.Out());
        return kExitOk;
    }
    CASDefinition* definition = nullptr;
    if (action != "new") {
        definition = FindDefinition(*repository, reference);
        if (!definition) return console.Fail(L"no definition \"" + reference + L"\" in system " +
                                             std::to_wstring(system->GetSystemId()));
    }
    if (action == "show") {
        CDefinitionOutline::Print(*definition, console.Out());
        return kExitOk;
    }

    acedInputScript()->clear();
    if (!acedInputScript()->addScript(arguments.GetValues().count("input") ? arguments.GetText("input") : L"enter",
                                      &error))
        return console.Fail(L"--input: " + error);
    CASDefinitionFactory* factory = CASDefinitionFactory::Instance(repository);
    factory->SetEditorInput(edit);
    if (action == "new") {
        std::unique_ptr<CRepositoryItem> made(factory->CreateRepositoryItemUI(etAssemblyScheme, system));
        definition = dynamic_cast<CASDefinition*>(made.get());
        if (definition) repository->AddRepositoryItem(made.release(), 0);
    } else if (!factory->EditRepositoryItemUI(definition)) {
        definition = nullptr;
    }
    if (!definition) {
        return console.Fail(factory->GetLastEditorError().empty() ? L"cancelled; nothing was saved"
                                                                  : factory->GetLastEditorError());
    }
    if (!repository->Save(error)) return console.Fail(error);
    console.Out() << "saved " << acutWcharToUtf8(definition->GetId()) << " \"" << acutWcharToUtf8(definition->GetName())
                  << "\" to " << acutWcharToUtf8(system->GetSubXMLPath(CASRepository::kRepositoryKey)) << '\n';
    return kExitOk;
}

}  // namespace XimoGis::Asch
