#include "module/definitions/CASDimensions.h"

namespace XimoGis::AssemblySchemes {

CASDimensions::CASDimensions(double width, double height) : m_width(width), m_height(height) {}

void CASDimensions::AddSubComponentDimensions(const boost::shared_ptr<CASDimensions>& dimensions) {
    if (dimensions) m_subDimensions[dimensions->GetInternalId()] = dimensions;
}

boost::shared_ptr<CASDimensions> CASDimensions::GetDimensionsByInternalId(const wchar_t* internalId) const {
    if (!internalId) return {};
    const auto found = m_subDimensions.find(internalId);
    return found == m_subDimensions.end() ? boost::shared_ptr<CASDimensions>() : found->second;
}

void CASDimensions::TranslateDimension(const AcGeVector3d& offset) {
    m_bottomLeft += offset;
    m_upperRight += offset;
    for (const auto& [id, sub] : m_subDimensions) sub->TranslateDimension(offset);
}

}  // namespace XimoGis::AssemblySchemes
