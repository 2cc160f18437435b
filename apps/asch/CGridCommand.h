#pragma once
// "asch grid --workspace W --drawing D.dxf --definition ID [--nodes A,B,... | --all-nodes]
//  --rows R --columns C [--gap-x GX] [--gap-y GY] --at X,Y": draws a grid of scheme sheets whose
// lower-left corner is picked at X,Y, one sheet per node (by GUID or name) or, without nodes,
// rows x columns sheets for no node; more nodes than cells add rows upwards. The sheets are
// stored on the drawing, which is saved (made when it does not exist). A progress bar shows on a
// terminal.

#include "IAschCommand.h"

namespace XimoGis::Asch {

class CGridCommand : public IAschCommand {
public:
    std::string GetName() const override { return "grid"; }
    std::string GetSummary() const override { return "draw a grid of scheme sheets, one per node"; }
    std::string GetSynopsis() const override {
        return "asch grid --workspace W --drawing D.dxf --definition ID [--nodes A,B,... | --all-nodes] "
               "--rows R --columns C [--gap-x GX] [--gap-y GY] --at X,Y";
    }
    void DescribeArguments(CAschArguments& arguments) const override;
    int Run(const CAschArguments& arguments, CAschConsole& console) const override;
};

}  // namespace XimoGis::Asch
