#include "CAddElementCommand.h"

#include "CSchemeDrawing.h"

#include "framework/catalog/CCatalog.h"
#include "framework/catalog/CCatalogItem.h"
#include "framework/workspace/CWsManager.h"
#include "host/base/AcString.h"
#include "host/input/AcEdInputScript.h"
#include "module/catalog/CASCatalog.h"
#include "module/editor/CASEditor.h"
#include "module/instances/CASInstance.h"

#include <cmath>
#include <optional>

namespace XimoGis::Asch {

namespace po = boost::program_options;
using AssemblySchemes::CASEditor;

namespace {

constexpr double kPi = 3.14159265358979323846;

// An item of the element catalog by id, else by name.
Data::CCatalogItem* FindItem(const std::wstring& reference, std::wstring& error) {
    if (Data::CCatalogItem* item = AssemblySchemes::CASCatalog::GetItem(reference)) return item;
    const Data::CCatalog* catalog = AssemblySchemes::CASCatalog::GetCatalog(error);
    if (!catalog) return nullptr;
    for (Data::CCatalogItem* item : catalog->GetItemsInTreeOrder()) {
        if (item->GetName() == reference) return item;
    }
    error = L"the element catalog has no item \"" + reference + L"\"";
    return nullptr;
}

}  // namespace

void CAddElementCommand::DescribeArguments(CAschArguments& arguments) const {
    arguments.AddWorkspace().AddDrawingOption();
    arguments.AddOptions()("item", po::value<std::string>()->value_name("ID"), "id or name of the catalog item")(
        "view", po::value<std::string>()->value_name("VIEW")->default_value("top"),
        "top, bottom, back, front, left or right")(
        "at", po::value<std::string>()->value_name("X,Y"), "where the element's centre goes")(
        "rotate", po::value<double>()->value_name("DEG"), "the direction of the element's x axis")(
        "mirror", "mirror the element about its axis")(
        "join-element-flange", po::value<std::string>()->value_name("X,Y"), "take the element by this flange")(
        "join-scheme-flange", po::value<std::string>()->value_name("X,Y"), "join onto the scheme's flange here");
}

int CAddElementCommand::Run(const CAschArguments& arguments, CAschConsole& console) const {
    const auto& values = arguments.GetValues();
    if (!values.count("item")) return console.Fail(std::string("no catalog item given (--item ID)"));
    AssemblySchemes::enmViewDirection view;
    if (!AssemblySchemes::ParseViewDirection(arguments.GetText("view"), view))
        return console.Fail(L"unknown view \"" + arguments.GetText("view") +
                            L"\"; use top, bottom, back, front, left or right");
    AcGePoint3d at;
    std::optional<AcGePoint3d> elementFlange, schemeFlange;
    std::string usage;
    if (!arguments.GetPoint("at", at, usage) || !arguments.GetPoint("join-element-flange", elementFlange, usage) ||
        !arguments.GetPoint("join-scheme-flange", schemeFlange, usage))
        return console.Fail(usage);

    CSchemeDrawing drawing;
    std::wstring error;
    if (!drawing.Open(arguments.GetWorkspace(), arguments.GetDrawing(), error)) return console.Fail(error);
    Data::CCatalogItem* item = FindItem(arguments.GetText("item"), error);
    if (!item) return console.Fail(error);

    // What the user does: bring the element, turn it, mirror it, take it by a flange, join it.
    AcEdInputScript* input = acedInputScript();
    input->addMove(at);
    if (values.count("rotate")) {
        const double angle = values["rotate"].as<double>() * kPi / 180.0;
        input->addText(L"_Rot");
        input->addMove(at + AcGeVector3d(std::cos(angle), std::sin(angle), 0.0) * 100.0);
    }
    if (values.count("mirror")) input->addText(L"_Mir");
    if (elementFlange) {
        input->addText(L"_Elf");
        input->addMove(*elementFlange);
    }
    if (schemeFlange) {
        input->addText(L"_Scf");
        input->addPick(*schemeFlange);
    } else {
        input->addPick(elementFlange ? *elementFlange : at);
    }

    auto* log = Workspace::CWsManager::Instance();
    const std::size_t logged = log->GetMessages().size();
    CASEditor* editor = CASEditor::Instance();
    if (!editor->DrawASElement(item, view)) {
        const auto& messages = log->GetMessages();
        return console.Fail(messages.size() > logged ? messages.back().text
                                                     : L"no scheme sheet where the element was placed; nothing added");
    }
    if (!drawing.Save(error)) return console.Fail(error);
    const auto sheet = editor->GetInstanceByPosition(CASEditor::GetDragData()->GetHandle());
    console.Out() << "added \"" << acutWcharToUtf8(item->GetName()) << "\" to scheme "
                  << (sheet ? acutWcharToUtf8(sheet->GetGuid()) : std::string("?")) << '\n';
    return kExitOk;
}

}  // namespace XimoGis::Asch
