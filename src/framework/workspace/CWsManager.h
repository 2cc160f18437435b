#pragma once
// The workspace's message log: messages meant for the user (a node without a manhole, a view
// that could not be drawn...), kept in memory for the caller to list and appended to
// "<workspace>/logs/messages.log" while a workspace is open.
//
// The file holds one message per line, UTF-8, fields separated by tabs:
//   <time>\t<level>\t<text>\t<guid>
// Line breaks, carriage returns, tabs and backslashes inside the text are written as \n, \r, \t
// and \\ so that every message stays on one line.

#include "framework/workspace/CWsMessage.h"

#include <string>
#include <vector>

namespace XimoGis::Workspace {

class CWsManager {
public:
    static CWsManager* Instance();

    // Records a message with the GUID of the entity it concerns (may be empty). False when no
    // workspace is open or the file could not be written; the message is kept in memory anyway.
    static bool LogMessage(int level, const std::wstring& text, const std::wstring& guid = std::wstring());

    const std::vector<CWsMessage>& GetMessages() const { return m_messages; }
    void ClearMessages() { m_messages.clear(); }
    // The message log of the open workspace; empty when none is open.
    static std::wstring GetMessageLogFile();
    // The line that LogMessage writes for `message`, without the final line break.
    static std::wstring FormatLine(const CWsMessage& message);

    CWsManager(const CWsManager&) = delete;
    CWsManager& operator=(const CWsManager&) = delete;

private:
    CWsManager() = default;

    std::vector<CWsMessage> m_messages;
};

}  // namespace XimoGis::Workspace
