#pragma once
// "asch list DRAWING.dxf --workspace W [--system ID] [--json]": opens the drawing as a document,
// rescans it for scheme sheets (of every system, or of the one given) and prints each sheet with
// its elements, as a table or as JSON. Damaged scheme attributes do not stop the rescan: what it
// skipped is told on standard error, one line per finding with its code and the entity's handle.

#include "IAschCommand.h"

namespace XimoGis::Asch {

class CListCommand : public IAschCommand {
public:
    std::string GetName() const override { return "list"; }
    std::string GetSummary() const override { return "list the scheme sheets and elements of a drawing"; }
    std::string GetSynopsis() const override { return "asch list DRAWING.dxf --workspace W [--system ID] [--json]"; }
    void DescribeArguments(CAschArguments& arguments) const override;
    int Run(const CAschArguments& arguments, CAschConsole& console) const override;
};

}  // namespace XimoGis::Asch
