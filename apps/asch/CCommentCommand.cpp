#include "CCommentCommand.h"

#include "CSchemeDrawing.h"

#include "host/base/AcString.h"
#include "host/input/AcEdInputScript.h"
#include "module/editor/CASEditor.h"

#include <vector>

namespace XimoGis::Asch {

namespace po = boost::program_options;

void CCommentCommand::DescribeArguments(CAschArguments& arguments) const {
    arguments.AddWorkspace().AddDrawingOption();
    arguments.AddOptions()("text", po::value<std::string>()->value_name("T"), "the comment")(
        "at", po::value<std::vector<std::string>>()->value_name("X,Y")->composing(),
        "where a copy goes (repeatable)");
}

int CCommentCommand::Run(const CAschArguments& arguments, CAschConsole& console) const {
    const auto& values = arguments.GetValues();
    const std::wstring text = arguments.GetText("text");
    if (text.empty()) return console.Fail(std::string("no text given (--text T)"));
    if (!values.count("at")) return console.Fail(std::string("no point given (--at X,Y)"));
    std::vector<AcGePoint3d> points;
    for (const std::string& at : values["at"].as<std::vector<std::string>>()) {
        std::string usage;
        if (!CAschArguments::ParsePoint("at", at, points.emplace_back(), usage)) return console.Fail(usage);
    }
    CSchemeDrawing drawing;
    std::wstring error;
    if (!drawing.Open(arguments.GetWorkspace(), arguments.GetDrawing(), error)) return console.Fail(error);
    for (const AcGePoint3d& point : points) acedInputScript()->addPick(point);
    acedInputScript()->addEnter();  // and done
    AssemblySchemes::CASEditor::Instance()->DrawComment(text);
    if (!drawing.Save(error)) return console.Fail(error);
    console.Out() << "placed " << points.size() << " comment(s) into " << acutWcharToUtf8(drawing.GetFileName())
                  << '\n';
    return kExitOk;
}

}  // namespace XimoGis::Asch
