#pragma once
// "asch definitions list|show|new|edit --workspace W": the scheme definitions of a network
// system of a workspace (its "AS" repository). "show" prints a definition's outline; "new" and
// "edit" run the definition editor with the changes given on the command line and save the
// repository file (written beside and renamed over the old one). The editor asks for
// confirmation from the input script: Enter (the default answer, OK) unless --input says otherwise.

#include "IAschCommand.h"

namespace XimoGis::Asch {

class CDefinitionsCommand : public IAschCommand {
public:
    std::string GetName() const override { return "definitions"; }
    std::string GetSummary() const override { return "list, show, make and edit scheme definitions"; }
    std::string GetSynopsis() const override {
        return "asch definitions list|show|new|edit [DEFINITION] --workspace W [--system ID] [--name NAME] "
               "[--set TAG=VALUE]... [--add TYPE[@X,Y]]... [--remove INTERNAL_ID]... [--input SCRIPT]";
    }
    void DescribeArguments(CAschArguments& arguments) const override;
    int Run(const CAschArguments& arguments, CAschConsole& console) const override;
};

}  // namespace XimoGis::Asch
