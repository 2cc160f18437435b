#pragma once
// Two forms:
// "asch manhole DIR NODE -o OUT": draws the side and top view of a node's manhole from a
// workspace (the active system's network unless --system says otherwise) into a new drawing and
// writes it as DXF (OUT ending in .dxf) or as an SVG picture.
// "asch manhole --workspace W --drawing D.dxf --scheme ID --side|--top --at X,Y": draws the side
// or top view of the manhole of a scheme sheet's node at the scheme's scale, centred at X,Y, as
// part of the sheet, and saves the drawing.
// A node without a manhole is a failure that names the node; it is also written to the
// workspace's message log.

#include "IAschCommand.h"

namespace XimoGis::Asch {

class CManholeCommand : public IAschCommand {
public:
    std::string GetName() const override { return "manhole"; }
    std::string GetSummary() const override { return "draw a node's manhole views, alone or on its scheme sheet"; }
    std::string GetSynopsis() const override {
        return "asch manhole DIR NODE -o OUT.svg|OUT.dxf [--system ID] [--scale S]\n"
               "       asch manhole --workspace W --drawing D.dxf --scheme ID --side|--top --at X,Y";
    }
    void DescribeArguments(CAschArguments& arguments) const override;
    int Run(const CAschArguments& arguments, CAschConsole& console) const override;

private:
    int RunOnScheme(const CAschArguments& arguments, CAschConsole& console) const;
};

}  // namespace XimoGis::Asch
