#include "framework/repository/CDefinitionRepository.h"

#include "framework/data/CXmlText.h"
#include "framework/notification/CNotificationFramework.h"
#include "framework/systems/CGisSystem.h"
#include "framework/utility/CFilePath.h"
#include "framework/utility/CUtility.h"
#include "host/base/AcString.h"

#include <pugixml.hpp>

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace XimoGis {

using Data::CXmlText;

CDefinitionRepository::~CDefinitionRepository() = default;

int CDefinitionRepository::ReadXML(const wchar_t* xml) {
    ClearRepository();
    pugi::xml_document document;
    if (!CXmlText::Load(xml, document, nullptr)) return 0;
    const pugi::xml_node root = document.child(acutWcharToUtf8(m_rootElementName).c_str());
    if (!root) return 0;
    m_exploded = root.attribute("exploded").as_int() == 1 ? 1 : 0;
    for (const pugi::xml_node& element : root.children("repositoryItem")) {
        auto item = std::make_unique<CRepositoryItem>();
        item->SetId(CXmlText::GetAttribute(element, "id"));
        item->SetName(CXmlText::GetAttribute(element, "name"));
        item->SetEntType(element.attribute("entType").as_int());
        item->SetTopologyType(element.attribute("topologyType").as_int());
        item->SetTopologyFunction(element.attribute("topologyFunction").as_int());
        item->SetReadOnly(element.attribute("readOnly").as_int());
        item->SetHidden(element.attribute("hidden").as_int());
        AddRepositoryItem(item.release(), 1);
    }
    return 1;
}

int CDefinitionRepository::OnSystemDelete(System::CGisSystem* /*system*/) { return 1; }

bool CDefinitionRepository::AddRepositoryItem(CRepositoryItem* item, int fromStorage) {
    if (!item) return false;
    const bool held =
        std::any_of(m_items.begin(), m_items.end(), [item](const auto& own) { return own.get() == item; });
    if (held) return false;
    if (!fromStorage && item->GetId().empty()) item->SetId(Utility::CUtility::CreateGUID());
    m_items.emplace_back(item);
    return true;
}

bool CDefinitionRepository::RemoveRepositoryItem(CRepositoryItem* item) {
    const auto found =
        std::find_if(m_items.begin(), m_items.end(), [item](const auto& own) { return own.get() == item; });
    if (found == m_items.end()) return false;
    m_items.erase(found);
    return true;
}

void CDefinitionRepository::ClearRepository() { m_items.clear(); }

CRepositoryItem* CDefinitionRepository::GetRepositoryItemById(const wchar_t* id) const {
    if (!id) return nullptr;
    const auto found =
        std::find_if(m_items.begin(), m_items.end(), [id](const auto& item) { return item->GetId() == id; });
    return found == m_items.end() ? nullptr : found->get();
}

CRepositoryItem* CDefinitionRepository::GetRepositoryItemByName(const wchar_t* name) const {
    if (!name) return nullptr;
    const auto found =
        std::find_if(m_items.begin(), m_items.end(), [name](const auto& item) { return item->GetName() == name; });
    return found == m_items.end() ? nullptr : found->get();
}

std::vector<CRepositoryItem*> CDefinitionRepository::GetRepositoryItems() const {
    std::vector<CRepositoryItem*> items;
    items.reserve(m_items.size());
    for (const auto& item : m_items) items.push_back(item.get());
    return items;
}

std::wstring CDefinitionRepository::GetNextRepositoryItemName(const wchar_t* base) const {
    const std::wstring prefix = base && *base ? std::wstring(base) + L" " : std::wstring();
    for (std::size_t n = 1;; ++n) {
        std::wstring candidate = prefix + std::to_wstring(n);
        if (!GetRepositoryItemByName(candidate.c_str())) return candidate;
    }
}

std::wstring CDefinitionRepository::GetXML() const {
    std::wostringstream out;
    out << L"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<" << m_rootElementName << L" version=\"1\" exploded=\""
        << (m_exploded ? 1 : 0) << L"\">\n";
    for (const auto& item : m_items) {
        item->GetXML(out);
        out << L"\n";
    }
    out << L"</" << m_rootElementName << L">\n";
    return out.str();
}

bool CDefinitionRepository::Fail(const std::wstring& message, std::wstring& error) {
    m_lastError = message;
    error = message;
    return false;
}

std::wstring CDefinitionRepository::Describe() const { return L"Repository \"" + m_key + L"\""; }

bool CDefinitionRepository::Load(std::wstring& error) {
    ClearRepository();
    m_fileUnreadable = false;
    if (!m_system) return Fail(Describe() + L" belongs to no system", error);
    const std::wstring path = m_system->GetSubXMLPath(m_key.c_str());
    std::error_code ec;
    if (!path.empty() && !std::filesystem::exists(Utility::CFilePath::ToPath(path), ec))
        return Fail(L"Repository file \"" + path + L"\" does not exist; the repository is empty", error);

    // From here on the file is there but may be unusable: it must survive for the user to repair.
    m_fileUnreadable = true;
    std::wstring xml;
    std::wstring readError;
    if (!m_system->GetSubXMLByReferenceId(m_key.c_str(), xml, readError)) return Fail(readError, error);
    pugi::xml_document document;
    std::wstring parseError;
    if (!CXmlText::Load(xml.c_str(), document, &parseError))
        return Fail(L"Repository file \"" + path + L"\": " + parseError, error);
    const std::wstring rootName = acutUtf8ToWchar(document.document_element().name());
    if (rootName != m_rootElementName) {
        return Fail(L"Repository file \"" + path + L"\" has the root element \"" + rootName + L"\" instead of \"" +
                        m_rootElementName + L"\"",
                    error);
    }
    if (!ReadXML(xml.c_str())) {
        ClearRepository();
        return Fail(L"Repository file \"" + path + L"\" could not be read", error);
    }
    m_fileUnreadable = false;
    m_lastError.clear();
    // Copied: a responder may free this repository while it is told.
    System::CGisSystem* system = m_system;
    const std::wstring key = m_key;
    CNotificationFramework::Instance()->NotifyResponders(
        [system, &key](IFrameworkEventResponder& r) { return r.OnAfterRepositoryLoaded(system, key.c_str()); });
    return true;
}

bool CDefinitionRepository::Save(std::wstring& error) {
    if (!m_system) return Fail(Describe() + L" belongs to no system", error);
    if (m_rootElementName.empty()) return Fail(Describe() + L" has no root element name", error);
    if (m_fileUnreadable) {
        return Fail(L"Repository file \"" + m_system->GetSubXMLPath(m_key.c_str()) +
                        L"\" could not be read and is not overwritten; repair or remove it and load again",
                    error);
    }
    std::wstring writeError;
    if (!m_system->SetSubXMLByReferenceId(m_key.c_str(), GetXML(), writeError)) return Fail(writeError, error);
    m_lastError.clear();
    System::CGisSystem* system = m_system;
    const std::wstring key = m_key;
    CNotificationFramework::Instance()->NotifyResponders(
        [system, &key](IFrameworkEventResponder& r) { return r.OnAfterRepositorySaved(system, key.c_str()); });
    return true;
}

}  // namespace XimoGis
