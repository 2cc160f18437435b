#pragma once
// "asch add-element --workspace W --drawing D.dxf --item ID --view VIEW --at X,Y [--rotate DEG]
//  [--mirror] [--join-element-flange X,Y] [--join-scheme-flange X,Y]": adds one element of the
// element catalog (by id or name) to the scheme sheet under X,Y, as the user would place it:
//   the element, seen from VIEW (top, bottom, back, front, left, right), is taken by its centre
//   and brought to X,Y;
//   --rotate turns its own x axis to DEG degrees (in steps of 15 degrees) about that point;
//   --mirror mirrors it about its axis there;
//   --join-element-flange takes it by its flange nearest that point instead (the flange comes to
//   the point; give the flange's midpoint to keep the element where it is);
//   --join-scheme-flange joins that flange (or, without one chosen, the element's flange nearest
//   the target) onto the free flange of the sheet's elements nearest that point.
// The element is numbered on its sheet; the drawing is saved.

#include "IAschCommand.h"

namespace XimoGis::Asch {

class CAddElementCommand : public IAschCommand {
public:
    std::string GetName() const override { return "add-element"; }
    std::string GetSummary() const override { return "add a catalog element to a scheme sheet"; }
    std::string GetSynopsis() const override {
        return "asch add-element --workspace W --drawing D.dxf --item ID --view VIEW --at X,Y [--rotate DEG] "
               "[--mirror] [--join-element-flange X,Y] [--join-scheme-flange X,Y]";
    }
    void DescribeArguments(CAschArguments& arguments) const override;
    int Run(const CAschArguments& arguments, CAschConsole& console) const override;
};

}  // namespace XimoGis::Asch
