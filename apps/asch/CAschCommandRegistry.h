#pragma once
// The commands of the command-line host by name, and the dispatch of a command line to them:
// "--help", "--version", usage errors (exit 2) and failures (exit 1) are handled here once.

#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "IAschCommand.h"

namespace XimoGis::Asch {

class CAschCommandRegistry {
public:
    // Takes ownership; a command of the same name is replaced.
    void Register(std::unique_ptr<IAschCommand> command);
    const IAschCommand* Find(const std::string& name) const;

    // Runs the command line (words after the program name); returns the exit code.
    int Run(const std::vector<std::string>& words, std::ostream& out, std::ostream& err) const;

private:
    void PrintUsage(std::ostream& out) const;
    static void PrintCommandHelp(const IAschCommand& command, const CAschArguments& arguments, std::ostream& out);

    std::map<std::string, std::unique_ptr<IAschCommand>> m_commands;
};

}  // namespace XimoGis::Asch
