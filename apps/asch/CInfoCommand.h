#pragma once
// "asch info DRAWING.dxf": what a drawing holds. Entities by kind in model space and in each
// block, references per block, layers with colour and linetype, registered applications, and
// which applications' extended data the entities carry.

#include "IAschCommand.h"

namespace XimoGis::Asch {

class CInfoCommand : public IAschCommand {
public:
    std::string GetName() const override { return "info"; }
    std::string GetSummary() const override { return "tell what a drawing holds"; }
    std::string GetSynopsis() const override { return "asch info DRAWING.dxf"; }
    void DescribeArguments(CAschArguments& arguments) const override;
    int Run(const CAschArguments& arguments, CAschConsole& console) const override;
};

}  // namespace XimoGis::Asch
