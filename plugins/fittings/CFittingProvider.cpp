#include "fittings/CFittingProvider.h"

#include "fittings/CFittingDimensions.h"
#include "fittings/CFittingProjection.h"
#include "fittings/CFittingSketch.h"

#include "module/definitions/CASDefinition.h"

#include <cmath>

namespace XimoGis::AssemblySchemes::Fittings {

CFittingProvider::CFittingProvider(const wchar_t* providerId, enmAssemblyElementType type, std::wstring description)
    : IAssemblyElementTypeProvider(providerId, type), m_description(std::move(description)) {}

bool CFittingProvider::Require(bool condition, const std::wstring& text, std::wstring& problem) {
    if (!condition) problem = text;
    return condition;
}

bool CFittingProvider::RequireRoomForFlanges(const CFittingData& data, double endDn, std::wstring& problem) {
    const double flanges =
        CFittingDimensions::GetFlangeThickness(data.dn) + CFittingDimensions::GetFlangeThickness(endDn);
    return Require(data.length > flanges, L"AS_LENGTH is not longer than the two flanges", problem);
}

int CFittingProvider::CheckCatalogItem(const Data::CCatalogItem* item, std::wstring& problem) const {
    CFittingData data;
    return CFittingData::Read(item, data, problem) && CheckData(data, problem) ? 1 : 0;
}

int CFittingProvider::IsProjectionSupported(enmViewDirection view) const {
    if (!IsViewDirection(view)) return 0;
    CFittingModel model;
    BuildModel(GetTypicalData(), model);
    CFittingSketch sketch;
    return CFittingProjection::Project(model, view, sketch) && sketch.GetFlangeFaceCount() > 0 ? 1 : 0;
}

bool CFittingProvider::Sketch(const Data::CCatalogItem* item, enmViewDirection view, CFittingSketch& sketch) const {
    CFittingData data;
    std::wstring problem;
    if (!IsProjectionSupported(view) || !CFittingData::Read(item, data, problem) || !CheckData(data, problem))
        return false;
    CFittingModel model;
    BuildModel(data, model);
    return CFittingProjection::Project(model, view, sketch);
}

int CFittingProvider::DrawAEProjection(const AcGePoint3d& insertionPoint, enmViewDirection view,
                                       Data::CCatalogItem* item, CASDefinition* definition,
                                       AcArray<AcDbObjectId>& createdEntities) {
    // The definition's scale turns millimetres of the catalog into drawing units of the sheet.
    const double scale = definition && definition->GetScale() ? definition->GetScale()->x() : 1.0;
    if (!std::isfinite(scale) || scale <= 0.0) return 0;
    CFittingSketch sketch;
    if (!Sketch(item, view, sketch)) return 0;
    return sketch.Draw(insertionPoint, scale, createdEntities) ? 1 : 0;
}

}  // namespace XimoGis::AssemblySchemes::Fittings
