#include "framework/workspace/CWorkspaceSource.h"

#include "framework/data/CXmlText.h"
#include "framework/utility/CFilePath.h"
#include "host/base/AcString.h"

#include <pugixml.hpp>

#include <filesystem>

namespace XimoGis::Workspace {

using Data::CXmlText;
using Utility::CFilePath;

const wchar_t* CWorkspaceSource::SystemsFileName() { return L"systems.xml"; }

namespace {

bool ReadSystem(const pugi::xml_node& element, const std::wstring& folder, CWorkspaceSystemSource& system,
                std::wstring& error) {
    int active = 0;
    if (!CXmlText::ReadInt(element, "id", 0, system.id, &error) ||
        !CXmlText::ReadInt(element, "topologyType", 0, system.topologyType, &error) ||
        !CXmlText::ReadInt(element, "active", 0, active, &error))
        return false;
    system.active = active != 0;
    system.name = CXmlText::GetAttribute(element, "name");
    if (system.id <= 0 || system.name.empty())
        return CXmlText::Fail(&error, L"every <system> needs a positive id and a name");
    for (const pugi::xml_node layer : element.children("layer")) {
        int colour = 7;
        if (!CXmlText::ReadInt(layer, "color", 7, colour, &error)) return false;
        system.layers.emplace_back(CXmlText::GetAttribute(layer, "reference"), CXmlText::GetAttribute(layer, "name"),
                                   colour, CXmlText::GetAttribute(layer, "linetype"));
    }
    if (const pugi::xml_node network = element.child("network")) {
        const std::wstring nodes = CXmlText::GetAttribute(network, "nodes");
        const std::wstring sections = CXmlText::GetAttribute(network, "sections");
        if (nodes.empty() || sections.empty())
            return CXmlText::Fail(&error, L"<network> of system " + std::to_wstring(system.id) +
                                              L" needs both \"nodes\" and \"sections\"");
        system.nodesFile = CFilePath::Resolve(nodes, folder);
        system.sectionsFile = CFilePath::Resolve(sections, folder);
    }
    return true;
}

}  // namespace

bool CWorkspaceSource::ReadSystems(const std::wstring& folder, std::vector<CWorkspaceSystemSource>& systems,
                                   std::wstring& error) {
    systems.clear();
    const std::wstring base = CFilePath::AsFolder(folder);
    const std::wstring file = base + SystemsFileName();
    std::error_code ec;
    if (!std::filesystem::exists(CFilePath::ToPath(file), ec)) return true;
    pugi::xml_document document;
    const pugi::xml_parse_result parsed = document.load_file(CFilePath::ToPath(file).c_str());
    if (!parsed) {
        error = L"Workspace source \"" + file + L"\": not well-formed XML (" + acutUtf8ToWchar(parsed.description()) + L")";
        return false;
    }
    const pugi::xml_node root = document.child("systems");
    if (!root) {
        error = L"Workspace source \"" + file + L"\": the root element is not <systems>";
        return false;
    }
    std::vector<CWorkspaceSystemSource> read;
    for (const pugi::xml_node element : root.children("system")) {
        CWorkspaceSystemSource system;
        std::wstring why;
        if (!ReadSystem(element, base, system, why)) {
            error = L"Workspace source \"" + file + L"\": " + why;
            return false;
        }
        read.push_back(std::move(system));
    }
    systems = std::move(read);
    return true;
}

}  // namespace XimoGis::Workspace
