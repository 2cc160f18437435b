#pragma once
// "asch render DRAWING.dxf -o OUT.svg [--window X1,Y1,X2,Y2 | --scheme ID]": a picture of the
// drawing's model space, of a window of it, or of one scheme sheet (its rectangle, found by the
// sheet's id among the schemes the drawing holds).

#include "IAschCommand.h"

namespace XimoGis::Asch {

class CRenderCommand : public IAschCommand {
public:
    std::string GetName() const override { return "render"; }
    std::string GetSummary() const override { return "draw a drawing's model space as an SVG picture"; }
    std::string GetSynopsis() const override { 
        return "asch render DRAWING.dxf -o OUT.svg [--window X1,Y1,X2,Y2 | --scheme ID]";
    }
    void DescribeArguments(CAschArguments& arguments) const override;
    int Run(const CAschArguments& arguments, CAschConsole& console) const override;
};

}  // namespace XimoGis::Asch
