#pragma once
// A drawn scheme sheet. So far it carries the identity that the scheme manager, its storage and
// its events use: the framework GUID that keys the sheet (a new GUID for a new sheet, replaced by
// the stored one when a drawing is read) and the id of the definition it was drawn from.

#include <string>

namespace XimoGis::AssemblySchemes {

class CASInstance {
public:
    CASInstance();
    CASInstance(const CASInstance&) = delete;
    CASInstance& operator=(const CASInstance&) = delete;
    virtual ~CASInstance() = default;

    const std::wstring& GetGuid() const { return m_guid; }
    void SetGuid(const std::wstring& guid) { m_guid = guid; }
    const std::wstring& GetDefinitionId() const { return m_definitionId; }
    void SetDefinitionId(const std::wstring& id) { m_definitionId = id; }

private:
    std::wstring m_guid;
    std::wstring m_definitionId;
};

}  // namespace XimoGis::AssemblySchemes
