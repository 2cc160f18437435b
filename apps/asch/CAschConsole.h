#pragma once
// Where a command writes: results to standard output, errors to standard error, each error line
// starting with "asch <command>: ".

#include <ostream>
#include <string>

namespace XimoGis::Asch {

class CAschConsole {
public:
    CAschConsole(std::ostream& out, std::ostream& err, std::string command)
        : m_out(out), m_err(err), m_command(std::move(command)) {}

    std::ostream& Out() { return m_out; }
    // Writes the error line and returns 1, the exit code of a failed operation.
    int Fail(const std::wstring& message);
    int Fail(const std::string& message);
    // Writes an error-stream line for something that does not stop the command.
    void Warn(const std::wstring& message);

private:
    std::ostream& m_out;
    std::ostream& m_err;
    std::string m_command;
};

}  // namespace XimoGis::Asch
