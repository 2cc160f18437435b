#pragma once
// A network system of the workspace (a water-supply or sewer network): its id, name, topology
// type, drawing layers and sub-documents.
//
// Sub-documents are XML files kept per system under the workspace folder, named by reference id:
//   <workspace>/systems/<systemId>/<referenceId>.xml     e.g. systems/3/AS.xml
// They are UTF-8 text; a reference id is made of letters, digits, '_' and '-'.

#include "framework/systems/CGisSystemLayer.h"

#include <string>
#include <vector>

class AcDbDatabase;

namespace XimoGis::System {

class CGisSystem {
public:
    // The topology type of networks whose nodes carry assembly schemes.
    static constexpr int kSchemeTopologyType = 8;

    CGisSystem(int systemId, std::wstring name, int topologyType, std::vector<CGisSystemLayer> layers,
               std::wstring workspaceFolder);

    int GetSystemId() const { return m_systemId; }
    const std::wstring& GetName() const { return m_name; }
    int GetTopologyType() const { return m_topologyType; }
    const std::wstring& GetWorkspaceFolder() const { return m_workspaceFolder; }

    // Layers keep their order; pointers stay valid as long as the system.
    const std::vector<CGisSystemLayer>& GetLayers() const { return m_layers; }
    // Exact, case-sensitive look-up; null when the system has no such layer.
    const CGisSystemLayer* GetLayerByReference(const wchar_t* reference) const;

    // Makes every layer of the system exist in the drawing with the system's colour and linetype,
    // resetting both on layers that are there already; a linetype the host does not know becomes
    // "Continuous". Null takes the host's working database. False when there is no database or a
    // layer cannot be made; raises OnAfterSystemLayersRecreated on success.
    bool RecreateSystemlayers(AcDbDatabase* database = nullptr);

    // The system's folder of sub-documents, and the file of one (empty for a bad reference id).
    std::wstring GetSubXMLFolder() const;
    std::wstring GetSubXMLPath(const wchar_t* referenceId) const;
    // Reads a sub-document. False, with `error` naming the file, when the reference id is bad or
    // the file is missing, unreadable or not UTF-8 text.
    bool GetSubXMLByReferenceId(const wchar_t* referenceId, std::wstring& xml, std::wstring& error) const;
    bool GetSubXMLByReferenceId(const wchar_t* referenceId, std::wstring& xml) const;
    // Replaces a sub-document atomically (a temporary file renamed over the old one).
    bool SetSubXMLByReferenceId(const wchar_t* referenceId, const std::wstring& xml, std::wstring& error) const;

private:
    int m_systemId;
    std::wstring m_name;
    int m_topologyType;
    std::vector<CGisSystemLayer> m_layers;
    std::wstring m_workspaceFolder;
};

}  // namespace XimoGis::System
