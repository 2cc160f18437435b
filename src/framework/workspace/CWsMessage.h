#pragma once
// One message written to the workspace's message log.

#include <string>

namespace XimoGis::Workspace {

struct CWsMessage {
    std::wstring time;  // local time, "YYYY-MM-DD HH:MM:SS.mmm"
    int level = 0;
    std::wstring text;
    std::wstring guid;  // the entity the message is about; may be empty
};

}  // namespace XimoGis::Workspace
