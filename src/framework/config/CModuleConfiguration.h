#pragma once
// The configuration every module reads: the open workspace, its folders, the user's language with
// its message table, and the log settings.
//
// A workspace is a folder holding "workspace.xml":
//   <workspace name="Demo" language="en">
//     <paths install="install" support="support" INSTALL="install"/>
//     <log enabled="0" threshold="3" file="logs/ximo.log"/>
//   </workspace>
// Every attribute of <paths> is a path key (keys are case-sensitive); relative paths and the log
// file resolve against the workspace folder. "language" is "en" or "hr" (default "en"); <paths>
// and <log> may be left out (no paths; logging off, threshold 3, "logs/ximo.log").
//
// Messages of a language come from "<install>/messages/<language>.txt" when the workspace's install
// folder has that file, otherwise from the tables shipped with the framework. With no workspace
// open the shipped English table is used. Opening or closing a workspace configures the log engine
// (Logging::CLogEngine) from the <log> settings.

#include "framework/config/CMessageTable.h"

#include <map>
#include <string>

namespace XimoGis {

class CModuleConfiguration {
public:
    struct LogSettings {
        bool enabled = false;
        int threshold = 3;
        std::wstring file;  // absolute; empty with no workspace open
    };

    static CModuleConfiguration* Instance();

    // Opens the workspace in `folder`. On failure returns false, `error` names the file and what
    // is wrong, and the configuration in use stays as it was.
    bool Open(const std::wstring& folder, std::wstring& error);
    // Back to no workspace: shipped English messages, no paths, logging off.
    void Close();
    bool IsOpen() const { return !m_settings.workspace.empty(); }

    // Text of message `number` in the current language, "#<number>" when there is none.
    static std::wstring GetMsg(int number);
    // Folder of path key `key` ("install", "support", "INSTALL"...), absolute and ending with a
    // separator; empty for an unknown key or with no workspace open.
    static std::wstring GetPath(const std::wstring& key);

    // The workspace folder, ending with a separator; empty when none is open.
    const std::wstring& GetWorkspacePath() const { return m_settings.workspace; }
    const std::wstring& GetWorkspaceName() const { return m_settings.name; }
    const std::wstring& GetLanguage() const { return m_settings.language; }
    // Switches to "en" or "hr" and loads that language's table; false (and nothing changes) for
    // another language or a table that cannot be loaded.
    bool SetLanguage(const std::wstring& language, std::wstring& error);
    bool SetLanguage(const std::wstring& language);
    const LogSettings& GetLogSettings() const { return m_settings.log; }
    // The file the current messages came from.
    const std::wstring& GetMessageFile() const { return m_settings.messages.GetSource(); }

    CModuleConfiguration(const CModuleConfiguration&) = delete;
    CModuleConfiguration& operator=(const CModuleConfiguration&) = delete;

private:
    struct Settings {
        std::wstring workspace;
        std::wstring name;
        std::wstring language = L"en";
        std::map<std::wstring, std::wstring> paths;
        LogSettings log;
        CMessageTable messages;
    };

    CModuleConfiguration();
    static bool LoadMessages(Settings& settings, std::wstring& error);
    void Apply(Settings&& settings);

    Settings m_settings;
};

}  // namespace XimoGis
