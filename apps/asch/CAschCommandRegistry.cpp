#include "CAschCommandRegistry.h"

#include <exception>

namespace XimoGis::Asch {

void CAschCommandRegistry::Register(std::unique_ptr<IAschCommand> command) {
    if (!command) return;
    const std::string name = command->GetName();
    m_commands[name] = std::move(command);
}

const IAschCommand* CAschCommandRegistry::Find(const std::string& name) const {
    const auto found = m_commands.find(name);
    return found == m_commands.end() ? nullptr : found->second.get();
}

void CAschCommandRegistry::PrintUsage(std::ostream& out) const {
    out << "usage: asch [--help] [--version] COMMAND [ARGUMENTS]\n\n"
        << "Draws and inspects assembly scheme drawings without the CAD host.\n\nCommands:\n";
    for (const auto& [name, command] : m_commands) {
        out << "  " << name << std::string(name.size() < 10 ? 10 - name.size() : 1, ' ') << command->GetSummary()
            << '\n';
    }
    out << "\nRun 'asch COMMAND --help' for the arguments of a command.\n";
}

void CAschCommandRegistry::PrintCommandHelp(const IAschCommand& command, const CAschArguments& arguments,
                                            std::ostream& out) {
    out << "usage: " << command.GetSynopsis() << "\n\n" << command.GetSummary() << "\n\n";
    arguments.PrintOptions(out);
}

int CAschCommandRegistry::Run(const std::vector<std::string>& words, std::ostream& out, std::ostream& err) const {
    if (words.empty()) {
        PrintUsage(err);
        return kExitUsage;
    }
    const std::string& first = words.front();
    if (first == "--help" || first == "-h" || first == "help") {
        PrintUsage(out);
        return kExitOk;
    }
    if (first == "--version") {
        out << "asch " << XIMO_VERSION << '\n';
        return kExitOk;
    }
    const IAschCommand* command = Find(first);
    if (!command) {
        err << "asch: " << (first.rfind('-', 0) == 0 ? "unknown option '" : "unknown command '") << first
            << "'\nRun 'asch --help' for the commands.\n";
        return kExitUsage;
    }
    CAschArguments arguments(first);
    command->DescribeArguments(arguments);
    std::string error;
    if (!arguments.Parse(std::vector<std::string>(words.begin() + 1, words.end()), error)) {
        err << "asch " << first << ": " << error << "\nusage: " << command->GetSynopsis() << "\nRun 'asch " << first
            << " --help' for more.\n";
        return kExitUsage;
    }
    if (arguments.WantsHelp()) {
        PrintCommandHelp(*command, arguments, out);
        return kExitOk;
    }
    CAschConsole console(out, err, first);
    try {
        return command->Run(arguments, console);
    } catch (const std::exception& e) {
        // Nothing below should throw; if it does the user still gets a message, not an abort.
        return console.Fail(std::string("unexpected failure: ") + e.what());
    }
}

}  // namespace XimoGis::Asch
