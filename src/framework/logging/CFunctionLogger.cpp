#include "framework/logging/CFunctionLogger.h"

#include "framework/logging/CLogEngine.h"

namespace XimoGis::Logging {

CFunctionLogger::CFunctionLogger(const wchar_t* sourceFile, int line, const wchar_t* function, int level)
    : m_line(line) {
    CLogEngine* engine = CLogEngine::Instance();
    if (!engine->IsEnabled(level)) return;
    m_active = true;
    m_sourceFile = sourceFile ? sourceFile : L"";
    m_function = function ? function : L"";
    engine->Append(m_sourceFile, m_line, m_function, L"Entering function ");
}

CFunctionLogger::~CFunctionLogger() {
    if (m_active) CLogEngine::Instance()->Append(m_sourceFile, m_line, m_function, L"Exiting function ");
}

}  // namespace XimoGis::Logging
