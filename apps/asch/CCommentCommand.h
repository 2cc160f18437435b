#pragma once
// "asch comment --workspace W --drawing D.dxf --text T --at X,Y [--at X,Y ...]": places a copy
// of a comment text at each point; a copy on a scheme sheet whose definition has a comment
// component takes that component's text height, colour and style and becomes part of the sheet.
// Saves the drawing.

#include "IAschCommand.h"

namespace XimoGis::Asch {

class CCommentCommand : public IAschCommand {
public:
    std::string GetName() const override { return "comment"; }
    std::string GetSummary() const override { return "place a comment text on scheme sheets"; }
    std::string GetSynopsis() const override {
        return "asch comment --workspace W --drawing D.dxf --text T --at X,Y [--at X,Y ...]";
    }
    void DescribeArguments(CAschArguments& arguments) const override;
    int Run(const CAschArguments& arguments, CAschConsole& console) const override;
};

}  // namespace XimoGis::Asch
