#pragma once
// One named item of a definition repository (a scheme definition, for example). Items belong to
// their repository. Derived items write their own element through GetXML; a plain item writes
//   <repositoryItem id=".." name=".." entType=".." topologyType=".." topologyFunction=".."
//                   readOnly=".." hidden=".."/>

#include <ostream>
#include <string>

namespace XimoGis {

class CRepositoryItem {
public:
    CRepositoryItem() = default;
    CRepositoryItem(const CRepositoryItem&) = default;
    CRepositoryItem& operator=(const CRepositoryItem&) = default;
    virtual ~CRepositoryItem() = default;

    virtual void GetXML(std::wostream& out) const;
    virtual std::wstring GetXML() const;
    // Text shown beside the item in the repository browser.
    virtual std::wstring GetWsDescription() const { return {}; }
    // Non-zero when this item refers to `item`, called `name`, so that it may not be deleted alone.
    virtual int DependsOn(const wchar_t* /*name*/, CRepositoryItem* /*item*/) { return 0; }
    // Drops cached references to data that other items own, after those were reloaded.
    virtual void RefreshTemporaryDataReferences() {}

    const std::wstring& GetId() const { return m_id; }
    void SetId(const std::wstring& id) { m_id = id; }
    const std::wstring& GetName() const { return m_name; }
    void SetName(const std::wstring& name) { m_name = name; }
    int GetEntType() const { return m_entType; }
    void SetEntType(int entType) { m_entType = entType; }
    int GetTopologyFunction() const { return m_topologyFunction; }
    void SetTopologyFunction(int topologyFunction) { m_topologyFunction = topologyFunction; }
    int GetTopologyType() const { return m_topologyType; }
    void SetTopologyType(int topologyType) { m_topologyType = topologyType; }
    int GetReadOnly() const { return m_readOnly; }
    void SetReadOnly(int readOnly) { m_readOnly = readOnly; }
    int GetHidden() const { return m_hidden; }
    void SetHidden(int hidden) { m_hidden = hidden; }

private:
    std::wstring m_id;
    std::wstring m_name;
    int m_entType = 0;
    int m_topologyFunction = 0;
    int m_topologyType = 0;
    int m_readOnly = 0;
    int m_hidden = 0;
};

}  // namespace XimoGis
