#include "framework/workspace/CWsManager.h"

#include "framework/config/CModuleConfiguration.h"
#include "framework/utility/CFilePath.h"
#include "framework/utility/CTimeStamp.h"
#include "host/base/AcString.h"

#include <fstream>
#include <system_error>

namespace XimoGis::Workspace {

using Utility::CFilePath;

namespace {

std::wstring Escape(const std::wstring& text) {
    std::wstring out;
    out.reserve(text.size());
    for (wchar_t c : text) {
        switch (c) {
            case L'\\': out += L"\\\\"; break;
            case L'\n': out += L"\\n"; break;
            case L'\t': out += L"\\t"; break;
            case L'\r': out += L"\\r"; break;
            default: out += c;
        }
    }
    return out;
}

}  // namespace

CWsManager* CWsManager::Instance() {
    static CWsManager instance;
    return &instance;
}

bool CWsManager::LogMessage(int level, const std::wstring& text, const std::wstring& guid) {
    CWsMessage message{Utility::CTimeStamp::Now(), level, text, guid};
    Instance()->m_messages.push_back(message);

    const std::wstring file = GetMessageLogFile();
    if (file.empty()) return false;
    const std::filesystem::path path = CFilePath::ToPath(file);
    std::error_code ec;
    std::filesystem::create_directories(path.parent_path(), ec);
    std::ofstream out(path, std::ios::binary | std::ios::app);
    out << acutWcharToUtf8(FormatLine(message)) << '\n';
    out.close();
    return !out.fail();
}

std::wstring CWsManager::GetMessageLogFile() {
    const std::wstring& workspace = CModuleConfiguration::Instance()->GetWorkspacePath();
    return workspace.empty() ? workspace : workspace + L"logs/messages.log";
}

std::wstring CWsManager::FormatLine(const CWsMessage& message) {
    return message.time + L"\t" + std::to_wstring(message.level) + L"\t" + Escape(message.text) + L"\t" +
           Escape(message.guid);
}

}  // namespace XimoGis::Workspace
