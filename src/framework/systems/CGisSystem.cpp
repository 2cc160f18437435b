#include "framework/systems/CGisSystem.h"

#include "framework/notification/CNotificationFramework.h"
#include "framework/utility/CAtomicFile.h"
#include "framework/utility/CFilePath.h"
#include "host/base/AcString.h"
#include "host/database/AcDbDatabase.h"
#include "host/database/acdbOpenObject.h"

#include <algorithm>
#include <cwctype>
#include <filesystem>
#include <utility>

namespace XimoGis::System {

using Utility::CFilePath;

namespace {

// Reference ids become file names, so nothing that could leave the system's folder is allowed.
bool IsValidReferenceId(const wchar_t* referenceId) {
    if (!referenceId || !*referenceId) return false;
    for (const wchar_t* c = referenceId; *c; ++c) {
        const bool ascii = *c < 128;
        if (!ascii || !(std::iswalnum(static_cast<wint_t>(*c)) || *c == L'_' || *c == L'-')) return false;
    }
    return true;
}

std::wstring BadReferenceError(int systemId, const wchar_t* referenceId) {
    return L"System " + std::to_wstring(systemId) + L": bad sub-document reference id \"" +
           (referenceId ? referenceId : L"") + L"\"";
}

}  // namespace

CGisSystem::CGisSystem(int systemId, std::wstring name, int topologyType, std::vector<CGisSystemLayer> layers,
                       std::wstring workspaceFolder)
    : m_systemId(systemId),
      m_name(std::move(name)),
      m_topologyType(topologyType),
      m_layers(std::move(layers)),
      m_workspaceFolder(std::move(workspaceFolder)) {}

const CGisSystemLayer* CGisSystem::GetLayerByReference(const wchar_t* reference) const {
    if (!reference) return nullptr;
    const auto found = std::find_if(m_layers.begin(), m_layers.end(), [reference](const CGisSystemLayer& layer) {
        return layer.GetReference() == reference;
    });
    return found == m_layers.end() ? nullptr : &*found;
}

bool CGisSystem::RecreateSystemlayers(AcDbDatabase* database) {
    if (!database) database = acdbHostApplicationServices()->workingDatabase();
    if (!database) return false;
    for (const CGisSystemLayer& layer : m_layers) {
        const auto color = static_cast<Adesk::UInt16>(layer.GetColorIndex());
        AcDbObjectId layerId;
        if (database->addLayer(layerId, layer.GetLayerName(), color, layer.GetLinetypeName()) != Acad::eOk)
            return false;
        database->loadLineTypeFile(layer.GetLinetypeName().c_str());
        AcDbObjectId linetypeId = database->linetypeId(layer.GetLinetypeName());
        if (linetypeId.isNull()) linetypeId = database->continuousLinetype();
        AcDbObjectPointer<AcDbLayerTableRecord> record(layerId, AcDb::kForWrite);
        if (!record) return false;
        record->setColorIndex(color);
        record->setLinetypeObjectId(linetypeId);
    }
    CNotificationFramework::Instance()->NotifyResponders(
        [this](IFrameworkEventResponder& r) { return r.OnAfterSystemLayersRecreated(this); });
    return true;
}

std::wstring CGisSystem::GetSubXMLFolder() const {
    return CFilePath::ToText(CFilePath::ToPath(m_workspaceFolder) / "systems" / std::to_string(m_systemId));
}

std::wstring CGisSystem::GetSubXMLPath(const wchar_t* referenceId) const {
    if (!IsValidReferenceId(referenceId)) return {};
    return CFilePath::ToText(CFilePath::ToPath(GetSubXMLFolder()) /
                             CFilePath::ToPath(std::wstring(referenceId) + L".xml"));
}

bool CGisSystem::GetSubXMLByReferenceId(const wchar_t* referenceId, std::wstring& xml, std::wstring& error) const {
    xml.clear();
    const std::wstring path = GetSubXMLPath(referenceId);
    if (path.empty()) {
        error = BadReferenceError(m_systemId, referenceId);
        return false;
    }
    std::error_code ec;
    if (!std::filesystem::is_regular_file(CFilePath::ToPath(path), ec)) {
        error = L"Sub-document \"" + path + L"\" does not exist";
        return false;
    }
    std::string bytes;
    if (!CFilePath::ReadFile(path, bytes)) {
        error = L"Sub-document \"" + path + L"\" cannot be read";
        return false;
    }
    if (bytes.starts_with("\xEF\xBB\xBF")) bytes.erase(0, 3);
    std::wstring text = acutUtf8ToWchar(bytes);
    if (acutWcharToUtf8(text) != bytes) {
        error = L"Sub-document \"" + path + L"\" is not UTF-8 text";
        return false;
    }
    xml = std::move(text);
    return true;
}

bool CGisSystem::GetSubXMLByReferenceId(const wchar_t* referenceId, std::wstring& xml) const {
    std::wstring error;
    return GetSubXMLByReferenceId(referenceId, xml, error);
}

bool CGisSystem::SetSubXMLByReferenceId(const wchar_t* referenceId, const std::wstring& xml,
                                        std::wstring& error) const {
    const std::wstring path = GetSubXMLPath(referenceId);
    if (path.empty()) {
        error = BadReferenceError(m_systemId, referenceId);
        return false;
    }
    return Utility::CAtomicFile::Write(path, acutWcharToUtf8(xml), error);
}

}  // namespace XimoGis::System
