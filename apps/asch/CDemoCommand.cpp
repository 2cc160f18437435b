#include "CDemoCommand.h"

#include <filesystem>
#include <system_error>

#include "CDemoDrawing.h"
#include "CDrawingFile.h"
#include "host/base/AcString.h"
#include "host/svg/AcSvgRenderer.h"

namespace XimoGis::Asch {

void CDemoCommand::DescribeArguments(CAschArguments& arguments) const {
    arguments.AddOutput("the folder to write into (made when missing)");
}

int CDemoCommand::Run(const CAschArguments& arguments, CAschConsole& console) const {
    const std::filesystem::path folder(acutWcharToUtf8(arguments.GetOutput()));
    std::error_code code;
    std::filesystem::create_directories(folder, code);
    if (code || !std::filesystem::is_directory(folder))
        return console.Fail("cannot make the folder '" + folder.string() + "'" + (code ? ": " + code.message() : ""));

    AcDbDatabase db;
    if (!CDemoDrawing::Build(db)) return console.Fail(std::string("the host refused a part of the demo drawing"));
    const std::wstring drawing = acutUtf8ToWchar((folder / "demo.dxf").string());
    const std::wstring picture = acutUtf8ToWchar((folder / "demo.svg").string());
    std::wstring error;
    if (!CDrawingFile::Save(db, drawing, error)) return console.Fail(error);
    console.Out() << "wrote " << acutWcharToUtf8(drawing) << '\n';
    if (acdbWriteSvgFile(db, AcSvgOptions(), picture.c_str(), &error) != Acad::eOk) return console.Fail(error);
    console.Out() << "wrote " << acutWcharToUtf8(picture) << '\n';
    return kExitOk;
}

}  // namespace XimoGis::Asch
