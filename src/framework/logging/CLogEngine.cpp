#include "framework/logging/CLogEngine.h"

#include "framework/utility/CFilePath.h"
#include "framework/utility/CTimeStamp.h"
#include "host/base/AcString.h"

#include <cwchar>
#include <system_error>

namespace XimoGis::Logging {

using Utility::CFilePath;

namespace {

std::wstring PadRight(const std::wstring& text, std::size_t width) {
    return text.size() >= width ? text : text + std::wstring(width - text.size(), L' ');
}

}  // namespace

CLogEngine* CLogEngine::Instance() {
    static CLogEngine instance;
    return &instance;
}

void CLogEngine::Configure(bool loggingOn, int threshold, const std::wstring& file) {
    m_loggingOn = loggingOn;
    m_threshold = threshold;
    SetFile(file);
}

void CLogEngine::SetFile(const std::wstring& file) {
    if (file == m_file) return;
    m_stream.close();
    m_file = file;
}

void CLogEngine::Write(const std::wstring& sourceFile, int line, const std::wstring& function, int level,
                       const std::wstring& text) {
    if (IsEnabled(level)) Append(sourceFile, line, function, text);
}

void CLogEngine::Append(const std::wstring& sourceFile, int line, const std::wstring& function,
                        const std::wstring& text) {
    if (m_file.empty()) return;
    if (!m_stream.is_open()) {
        const std::filesystem::path path = CFilePath::ToPath(m_file);
        std::error_code ec;
        std::filesystem::create_directories(path.parent_path(), ec);
        m_stream.open(path, std::ios::binary | std::ios::app);
        if (!m_stream) {
            m_stream.close();
            return;
        }
    }
    // Flushed per line so that the log is complete up to the last call if the process dies.
    m_stream << acutWcharToUtf8(FormatLine(sourceFile, line, function, text)) << '\n' << std::flush;
    if (!m_stream) m_stream.close();
}

std::wstring CLogEngine::FormatLine(const std::wstring& sourceFile, int line, const std::wstring& function,
                                    const std::wstring& text) const {
    wchar_t number[16];
    std::swprintf(number, 16, L"%5.5i", line);
    return L"[" + Utility::CTimeStamp::Now() + L"] " + PadRight(sourceFile, 32) + L"(" + number +
           L"): [" + PadRight(function, 16) + L"], " + text;
}

}  // namespace XimoGis::Logging
