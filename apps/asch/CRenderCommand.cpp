#include "CRenderCommand.h"

#include "CDrawingFile.h"
#include "host/base/AcString.h"
#include "host/svg/AcSvgRenderer.h"
#include "module/instances/CASInstanceStorage.h"

namespace XimoGis::Asch {

void CRenderCommand::DescribeArguments(CAschArguments& arguments) const {
    arguments.AddDrawing().AddOutput("the SVG file to write").AddWindow();
    arguments.AddOptions()("scheme", boost::program_options::value<std::string>()->value_name("ID"),
                           "show only the sheet of this scheme");
}

namespace {

// The rectangle of the scheme sheet with that id in the drawing; false when it holds none.
bool FindSheet(AcDbDatabase& db, const std::wstring& id, AcDbExtents& sheet) {
    AcDbHostApplicationServices* services = acdbHostApplicationServices();
    AcDbDatabase* working = services->workingDatabase();
    services->setWorkingDatabase(&db);
    AssemblySchemes::CASInstanceStorage storage;
    storage.ReloadInstanceStorage(nullptr);
    services->setWorkingDatabase(working);
    const auto instance = storage.GetASInstanceById(id.c_str());
    if (!instance || !(instance->GetWidth() > 0.0) || !(instance->GetHeight() > 0.0)) return false;
    AcGePoint3d base;
    instance->GetBasePoint(base);
    sheet = AcDbExtents(base, base + AcGeVector3d(instance->GetWidth(), instance->GetHeight(), 0.0));
    return true;
}

}  // namespace

int CRenderCommand::Run(const CAschArguments& arguments, CAschConsole& console) const {
    AcDbDatabase db(false);
    std::wstring error;
    if (!CDrawingFile::Load(arguments.GetDrawing(), db, error)) return console.Fail(error);
    AcSvgOptions options;
    if (arguments.GetWindow()) options.window = *arguments.GetWindow();
    if (arguments.GetValues().count("scheme")) {
        if (arguments.GetWindow()) return console.Fail(std::string("give either --window or --scheme, not both"));
        AcDbExtents sheet;
        if (!FindSheet(db, arguments.GetText("scheme"), sheet))
            return console.Fail(L"'" + arguments.GetDrawing() + L"' has no scheme sheet " +
                                arguments.GetText("scheme"));
        options.window = sheet;
    }
    const std::wstring output = arguments.GetOutput();
    if (acdbWriteSvgFile(db, options, output.c_str(), &error) != Acad::eOk) return console.Fail(error);
    console.Out() << "wrote " << acutWcharToUtf8(output) << '\n';
    return kExitOk;
}

}  // namespace XimoGis::Asch
