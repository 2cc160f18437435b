#pragma once
// Base of the element type providers that element plug-ins register with the scheme manager: a
// provider draws, by program code, the catalog elements whose "AS_ELEMENTTYPE" property holds the
// provider's id. The id and the kind never change after construction.
//
// The order of the virtual operations is part of the interface that plug-ins are built against:
// destructor, GetDescription, CheckCatalogItem, DrawAEProjection, IsProjectionSupported. New
// operations go after these.

#include "module/catalog/enmViewDirection.h"

#include "host/base/AcArray.h"
#include "host/database/AcDbObjectId.h"
#include "host/geometry/AcGePoint3d.h"

#include <string>

namespace XimoGis::Data {
class CCatalogItem;
}

namespace XimoGis::AssemblySchemes {

class CASDefinition;

// Kinds of element type providers.
enum enmAssemblyElementType : int {
    eAssemblyElementUndefined = 0,
    eAssemblyElementFitting = 1,  // a pipe fitting joined by its flanges: flange, pipe piece, tee, bend, reducer
    eAssemblyElementValve = 2,    // a fitting that shuts off the flow
    eAssemblyElementHydrant = 3,  // an end element that takes water out of the network
};

class IAssemblyElementTypeProvider {
public:
    // Extended data of this registered application marks the lines of flange faces in drawn
    // elements: the editor finds an element's centre and joins elements at these lines.
    static const wchar_t* const kFlangeApplication;  // "AMS_PRIRUBNICA"

    IAssemblyElementTypeProvider(const wchar_t* providerId, enmAssemblyElementType type)
        : m_providerId(providerId ? providerId : L""), m_providerType(type) {}
    IAssemblyElementTypeProvider(const IAssemblyElementTypeProvider&) = delete;
    IAssemblyElementTypeProvider& operator=(const IAssemblyElementTypeProvider&) = delete;
    virtual ~IAssemblyElementTypeProvider() = default;

    // One line saying what the provider draws, for lists ("Double flanged pipe piece").
    virtual std::wstring GetDescription() const = 0;
    // Non-zero when the item carries the data the provider draws from; otherwise 0 and `problem`
    // names the property that is missing or wrong. DrawAEProjection draws nothing for such items.
    virtual int CheckCatalogItem(const Data::CCatalogItem* item, std::wstring& problem) const = 0;
    // Draws the element as seen from `view`, its first connection at `insertionPoint`, into model
    // space of the working database, at the definition's scale (millimetres at 1:1 when the
    // definition is null, the form element block files are kept in). Appends the ids of the
    // entities made to `createdEntities` and returns non-zero; on failure nothing stays drawn and
    // 0 is returned. The base draws nothing and returns 0.
    virtual int DrawAEProjection(const AcGePoint3d& insertionPoint, enmViewDirection view, Data::CCatalogItem* item,
                                 CASDefinition* definition, AcArray<AcDbObjectId>& createdEntities);
    // Whether the provider can draw that view; the base says no.
    virtual int IsProjectionSupported(enmViewDirection view) const;

    std::wstring GetProviderId() const { return m_providerId; }
    enmAssemblyElementType GetProviderType() const { return m_providerType; }

private:
    std::wstring m_providerId;
    enmAssemblyElementType m_providerType;
};

}  // namespace XimoGis::AssemblySchemes
