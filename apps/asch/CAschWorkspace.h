#pragma once
// Opening a workspace for a command: its configuration (paths, messages, logging) and its systems.

#include <string>

namespace XimoGis::Asch {

// False with `error` naming the folder or file and what is wrong.
bool OpenAschWorkspace(const std::wstring& folder, std::wstring& error);

}  // namespace XimoGis::Asch
