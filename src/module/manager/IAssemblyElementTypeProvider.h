#pragma once
// Base of the element type providers that element plug-ins register with the scheme manager: a
// provider draws, by program code, the catalog elements whose "AS_ELEMENTTYPE" property holds the
// provider's id. The id and the kind never change after construction.

#include <string>

namespace XimoGis::AssemblySchemes {

// Kinds of element type providers; plug-ins bring their own values.
enum enmAssemblyElementType : int {
    eAssemblyElementUndefined = 0,
};

class IAssemblyElementTypeProvider {
public:
    IAssemblyElementTypeProvider(const wchar_t* providerId, enmAssemblyElementType type)
        : m_providerId(providerId ? providerId : L""), m_providerType(type) {}
    IAssemblyElementTypeProvider(const IAssemblyElementTypeProvider&) = delete;
    IAssemblyElementTypeProvider& operator=(const IAssemblyElementTypeProvider&) = delete;
    virtual ~IAssemblyElementTypeProvider() = default;

    std::wstring GetProviderId() const { return m_providerId; }
    enmAssemblyElementType GetProviderType() const { return m_providerType; }

private:
    std::wstring m_providerId;
    enmAssemblyElementType m_providerType;
};

}  // namespace XimoGis::AssemblySchemes
