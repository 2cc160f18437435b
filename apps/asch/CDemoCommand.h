#pragma once
// "asch demo -o OUT_DIR": writes the demo drawing and its picture into a folder.

#include "IAschCommand.h"

namespace XimoGis::Asch {

class CDemoCommand : public IAschCommand {
public:
    std::string GetName() const override { return "demo"; }
    std::string GetSummary() const override { return "write a demo drawing (demo.dxf) and its picture (demo.svg)"; }
    std::string GetSynopsis() const override { return "asch demo -o OUT_DIR"; }
    void DescribeArguments(CAschArguments& arguments) const override;
    int Run(const CAschArguments& arguments, CAschConsole& console) const override;
};

}  // namespace XimoGis::Asch
