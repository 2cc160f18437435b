#pragma once
// "asch draw --workspace W --drawing D.dxf --definition ID [--node NODE] --at X,Y": draws one
// scheme sheet of a definition of the workspace's active system at a point, for a node of its
// network (by GUID or name) or for none, stores it on the drawing and saves the drawing (made
// when it does not exist).

#include "IAschCommand.h"

namespace XimoGis::Asch {

class CDrawCommand : public IAschCommand {
public:
    std::string GetName() const override { return "draw"; }
    std::string GetSummary() const override { return "draw one scheme sheet into a drawing"; }
    std::string GetSynopsis() const override {
        return "asch draw --workspace W --drawing D.dxf --definition ID [--node NODE] --at X,Y";
    }
    void DescribeArguments(CAschArguments& arguments) const override;
    int Run(const CAschArguments& arguments, CAschConsole& console) const override;
};

}  // namespace XimoGis::Asch
