#pragma once
// One command of the command-line host ("asch info ...", "asch render ..."). A command declares
// its arguments, the registry parses them, and the command runs with them.

#include <string>

#include "CAschArguments.h"
#include "CAschConsole.h"

namespace XimoGis::Asch {

// Exit codes of every command.
enum enmExitCode { kExitOk = 0, kExitFailed = 1, kExitUsage = 2 };

class IAschCommand {
public:
    virtual ~IAschCommand() = default;

    // The word after "asch".
    virtual std::string GetName() const = 0;
    // One line for "asch --help".
    virtual std::string GetSummary() const = 0;
    // How the command is called, e.g. "asch info DRAWING.dxf".
    virtual std::string GetSynopsis() const = 0;
    virtual void DescribeArguments(CAschArguments& arguments) const = 0;
    // Runs with arguments that parsed; returns an exit code.
    virtual int Run(const CAschArguments& arguments, CAschConsole& console) const = 0;
};

}  // namespace XimoGis::Asch
