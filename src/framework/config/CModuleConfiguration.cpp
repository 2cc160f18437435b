#include "framework/config/CModuleConfiguration.h"

#include "framework/logging/CLogEngine.h"
#include "framework/utility/CFilePath.h"
#include "host/base/AcString.h"

#include <pugixml.hpp>

#include <system_error>

namespace XimoGis {

using Utility::CFilePath;

namespace {

const wchar_t* const kWorkspaceFile = L"workspace.xml";
const wchar_t* const kDefaultLogFile = L"logs/ximo.log";

bool IsLanguage(const std::wstring& language) {
    return language == L"en" || language == L"hr";
}

std::wstring Text(const pugi::char_t* utf8) {
    return acutUtf8ToWchar(utf8);
}

int LineOf(const std::string& bytes, std::ptrdiff_t offset) {
    int line = 1;
    for (std::ptrdiff_t i = 0; i < offset && i < static_cast<std::ptrdiff_t>(bytes.size()); ++i)
        if (bytes[static_cast<std::size_t>(i)] == '\n') ++line;
    return line;
}

bool ReadLogSettings(const pugi::xml_node& log, const std::wstring& workspace, const std::wstring& file,
                     CModuleConfiguration::LogSettings& settings, std::wstring& error) {
    std::wstring logFile = kDefaultLogFile;
    if (log) {
        const std::wstring enabled = Text(log.attribute("enabled").as_string("0"));
        if (enabled != L"0" && enabled != L"1") {
            error = file + L": <log enabled> must be 0 or 1, not '" + enabled + L"'";
            return false;
        }
        settings.enabled = enabled == L"1";
        const std::wstring threshold = Text(log.attribute("threshold").as_string("3"));
        if (threshold.empty() || threshold.size() > 4 ||
            threshold.find_first_not_of(L"0123456789") != std::wstring::npos) {
            error = file + L": <log threshold> must be a whole number (0 or more), not '" + threshold + L"'";
            return false;
        }
        settings.threshold = std::stoi(threshold);
        if (log.attribute("file")) logFile = Text(log.attribute("file").value());
        if (logFile.empty()) {
            error = file + L": <log file> is empty";
            return false;
        }
    }
    settings.file = CFilePath::Resolve(logFile, workspace);
    return true;
}

}  // namespace

CModuleConfiguration* CModuleConfiguration::Instance() {
    static CModuleConfiguration instance;
    return &instance;
}

CModuleConfiguration::CModuleConfiguration() {
    Close();
}

void CModuleConfiguration::Close() {
    Settings settings;
    std::wstring ignored;
    // Without the shipped table every text shows as its placeholder; that is visible, not fatal.
    LoadMessages(settings, ignored);
    Apply(std::move(settings));
}

bool CModuleConfiguration::Open(const std::wstring& folder, std::wstring& error) {
    if (folder.empty()) {
        error = L"no workspace folder given";
        return false;
    }
    Settings settings;
    settings.workspace = CFilePath::AsFolder(CFilePath::Resolve(folder, L"."));
    std::error_code ec;
    if (!std::filesystem::is_directory(CFilePath::ToPath(settings.workspace), ec)) {
        error = settings.workspace + L": the workspace folder does not exist";
        return false;
    }
    const std::wstring file = settings.workspace + kWorkspaceFile;
    std::string bytes;
    if (!CFilePath::ReadFile(file, bytes)) {
        error = file + L": the file is missing or cannot be read";
        return false;
    }
    pugi::xml_document document;
    const pugi::xml_parse_result parsed = document.load_buffer(bytes.data(), bytes.size());
    if (!parsed) {
        error = file + L"(" + std::to_wstring(LineOf(bytes, parsed.offset)) + L"): malformed XML: " +
                Text(parsed.description());
        return false;
    }
    const pugi::xml_node root = document.document_element();
    if (std::string(root.name()) != "workspace") {
        error = file + L": the root element must be <workspace>, not <" + Text(root.name()) + L">";
        return false;
    }
    settings.name = Text(root.attribute("name").value());
    settings.language = Text(root.attribute("language").as_string("en"));
    if (!IsLanguage(settings.language)) {
        error = file + L": language '" + settings.language + L"' is not supported (en or hr)";
        return false;
    }
    for (const pugi::xml_attribute& attribute : root.child("paths").attributes()) {
        const std::wstring key = Text(attribute.name());
        const std::wstring value = Text(attribute.value());
        if (value.empty()) {
            error = file + L": <paths " + key + L"> is empty";
            return false;
        }
        settings.paths[key] = CFilePath::AsFolder(CFilePath::Resolve(value, settings.workspace));
    }
    if (!ReadLogSettings(root.child("log"), settings.workspace, file, settings.log, error)) return false;
    if (!LoadMessages(settings, error)) return false;
    Apply(std::move(settings));
    return true;
}

std::wstring CModuleConfiguration::GetMsg(int number) {
    return Instance()->m_settings.messages.GetText(number);
}

std::wstring CModuleConfiguration::GetPath(const std::wstring& key) {
    const auto& paths = Instance()->m_settings.paths;
    const auto found = paths.find(key);
    return found != paths.end() ? found->second : std::wstring();
}

bool CModuleConfiguration::SetLanguage(const std::wstring& language, std::wstring& error) {
    if (!IsLanguage(language)) {
        error = L"language '" + language + L"' is not supported (en or hr)";
        return false;
    }
    Settings settings = m_settings;
    settings.language = language;
    if (!LoadMessages(settings, error)) return false;
    Apply(std::move(settings));
    return true;
}

bool CModuleConfiguration::SetLanguage(const std::wstring& language) {
    std::wstring ignored;
    return SetLanguage(language, ignored);
}

bool CModuleConfiguration::LoadMessages(Settings& settings, std::wstring& error) {
    const std::wstring name = L"messages/" + settings.language + L".txt";
    const auto install = settings.paths.find(L"install");
    if (install != settings.paths.end()) {
        const std::wstring own = install->second + name;
        std::error_code ec;
        if (std::filesystem::is_regular_file(CFilePath::ToPath(own), ec))
            return settings.messages.Load(own, error);
    }
    return settings.messages.Load(CFilePath::Resolve(name, CFilePath::AsFolder(Text(XIMO_DATA_DIR))), error);
}

void CModuleConfiguration::Apply(Settings&& settings) {
    m_settings = std::move(settings);
    const LogSettings& log = m_settings.log;
    Logging::CLogEngine::Instance()->Configure(log.enabled, log.threshold, log.file);
}

}  // namespace XimoGis
