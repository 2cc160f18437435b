#pragma once
// "asch catalog ACTION [ITEM] --workspace W": the element catalog of a workspace.
//   list                      the catalog tree: groups, and items with their catalog number, their
//                             element type and whether a provider draws them
//   show ITEM                 an item (by id or name): its properties, and per view direction
//                             whether a provider draws it or which block file shows it
//   draw ITEM -o OUT [--view V]
//                             draws the item at 1:1 as it would be drawn in a scheme, from one view
//                             or from every view it can be drawn from ("all", the default), side
//                             by side; OUT ending in .dxf is a drawing, else an SVG picture
// The element plug-ins are those of the workspace's install folder.

#include "IAschCommand.h"

namespace XimoGis::Asch {

class CCatalogCommand : public IAschCommand {
public:
    std::string GetName() const override { return "catalog"; }
    std::string GetSummary() const override { return "list the element catalog, show and draw its items"; }
    std::string GetSynopsis() const override {
        return "asch catalog list|show|draw [ITEM] --workspace W [--view top|bottom|back|front|left|right|all] "
               "[-o OUT.svg|OUT.dxf]";
    }
    void DescribeArguments(CAschArguments& arguments) const override;
    int Run(const CAschArguments& arguments, CAschConsole& console) const override;
};

}  // namespace XimoGis::Asch
