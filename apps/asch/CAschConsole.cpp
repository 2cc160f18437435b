#include "CAschConsole.h"

#include "host/base/AcString.h"

namespace XimoGis::Asch {

int CAschConsole::Fail(const std::wstring& message) { return Fail(acutWcharToUtf8(message)); }

int CAschConsole::Fail(const std::string& message) {
    m_err << "asch " << m_command << ": " << message << '\n';
    return 1;
}

void CAschConsole::Warn(const std::wstring& message) {
    m_err << "asch " << m_command << ": " << acutWcharToUtf8(message) << '\n';
}

}  // namespace XimoGis::Asch
