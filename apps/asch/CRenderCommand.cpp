#include "CRenderCommand.h"

#include "CDrawingFile.h"
#include "host/base/AcString.h"
#include "host/svg/AcSvgRenderer.h"

namespace XimoGis::Asch {

void CRenderCommand::DescribeArguments(CAschArguments& arguments) const {
    arguments.AddDrawing().AddOutput("the SVG file to write").AddWindow();
}

int CRenderCommand::Run(const CAschArguments& arguments, CAschConsole& console) const {
    AcDbDatabase db(false);
    std::wstring error;
    if (!CDrawingFile::Load(arguments.GetDrawing(), db, error)) return console.Fail(error);
    AcSvgOptions options;
    if (arguments.GetWindow()) options.window = *arguments.GetWindow();
    const std::wstring output = arguments.GetOutput();
    if (acdbWriteSvgFile(db, options, output.c_str(), &error) != Acad::eOk) return console.Fail(error);
    console.Out() << "wrote " << acutWcharToUtf8(output) << '\n';
    return kExitOk;
}

}  // namespace XimoGis::Asch
