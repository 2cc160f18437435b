#pragma once
// Base of the fittings plug-in's element type providers: each draws its fitting from the catalog
// item's data by building a model of simple solids (CFittingModel) and projecting it onto the
// view (CFittingProjection). A provider supports the views in which its fitting, built from
// typical data, is shown whole and with at least one flange face edge-on (a line where the
// editor can join it); from other views nothing is drawn.

#include "fittings/CFittingData.h"
#include "fittings/CFittingModel.h"

#include "module/manager/IAssemblyElementTypeProvider.h"

#include <string>

namespace XimoGis::AssemblySchemes::Fittings {

class CFittingSketch;

class CFittingProvider : public IAssemblyElementTypeProvider {
public:
    CFittingProvider(const wchar_t* providerId, enmAssemblyElementType type, std::wstring description);

    std::wstring GetDescription() const override { return m_description; }
    int CheckCatalogItem(const Data::CCatalogItem* item, std::wstring& problem) const override;
    int DrawAEProjection(const AcGePoint3d& insertionPoint, enmViewDirection view, Data::CCatalogItem* item,
                         CASDefinition* definition, AcArray<AcDbObjectId>& createdEntities) override;
    int IsProjectionSupported(enmViewDirection view) const override;

    // The view as drawn at 1:1 before it becomes entities; false when the item's data do not do
    // or the view is not supported.
    bool Sketch(const Data::CCatalogItem* item, enmViewDirection view, CFittingSketch& sketch) const;

protected:
    // Checks the data beyond the DN, which is known to be positive; false with the problem.
    virtual bool CheckData(const CFittingData& data, std::wstring& problem) const = 0;
    virtual void BuildModel(const CFittingData& data, CFittingModel& model) const = 0;
    // Data of a typical item, from which the supported views are found.
    virtual CFittingData GetTypicalData() const = 0;

    // True when `condition` holds, else false with `text` as the problem.
    static bool Require(bool condition, const std::wstring& text, std::wstring& problem);
    // Whether the length leaves room for the flanges of a straight run of the DN and `endDn`.
    static bool RequireRoomForFlanges(const CFittingData& data, double endDn, std::wstring& problem);

private:
    std::wstring m_description;
};

}  // namespace XimoGis::AssemblySchemes::Fittings
