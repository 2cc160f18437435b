#pragma once
// "asch delete --workspace W --drawing D.dxf (--scheme ID | --definition ID | --all)": erases
// scheme sheets with everything drawn on them: one sheet by its id, every sheet drawn from a
// definition (by id or name) or every sheet of the drawing; then saves the drawing.

#include "IAschCommand.h"

namespace XimoGis::Asch {

class CDeleteCommand : public IAschCommand {
public:
    std::string GetName() const override { return "delete"; }
    std::string GetSummary() const override { return "delete scheme sheets from a drawing"; }
    std::string GetSynopsis() const override {
        return "asch delete --workspace W --drawing D.dxf (--scheme ID | --definition ID | --all)";
    }
    void DescribeArguments(CAschArguments& arguments) const override;
    int Run(const CAschArguments& arguments, CAschConsole& console) const override;
};

}  // namespace XimoGis::Asch
