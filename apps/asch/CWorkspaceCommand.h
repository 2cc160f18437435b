#pragma once
// "asch workspace ACTION DIR": makes and inspects workspace folders.
//   init DIR [--demo | --source SRC]   builds a workspace (the demo's, or from sources), replacing
//                                      a workspace built there before; the demo gets the element
//                                      plug-ins built with asch and block files of a few items
//   import DIR --system ID --nodes FILE --sections FILE
//                                      replaces a system's node and section layers
//   info DIR                           lists the systems, their layers, networks and data

#include "IAschCommand.h"

namespace XimoGis::Asch {

class CWorkspaceCommand : public IAschCommand {
public:
    std::string GetName() const override { return "workspace"; }
    std::string GetSummary() const override { return "build a workspace folder, import networks, list its content"; }
    std::string GetSynopsis() const override {
        return "asch workspace init DIR [--demo | --source SRC] | import DIR --system ID --nodes FILE --sections FILE | "
               "info DIR";
    }
    void DescribeArguments(CAschArguments& arguments) const override;
    int Run(const CAschArguments& arguments, CAschConsole& console) const override;

private:
    static int Init(const CAschArguments& arguments, CAschConsole& console);
    static int Import(const CAschArguments& arguments, CAschConsole& console);
    static int Info(const CAschArguments& arguments, CAschConsole& console);
};

}  // namespace XimoGis::Asch
