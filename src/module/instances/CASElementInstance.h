#pragma once
// One catalog element placed on a drawn scheme. So far it carries its element id, a new GUID for
// a new element, which the scheme events pass on to the component types.

#include <string>

namespace XimoGis::AssemblySchemes {

class CASElementInstance {
public:
    CASElementInstance();
    CASElementInstance(const CASElementInstance&) = delete;
    CASElementInstance& operator=(const CASElementInstance&) = delete;
    virtual ~CASElementInstance() = default;

    const std::wstring& GetElementId() const { return m_elementId; }
    void SetElementId(const wchar_t* id) { m_elementId = id ? id : L""; }

private:
    std::wstring m_elementId;
};

}  // namespace XimoGis::AssemblySchemes
