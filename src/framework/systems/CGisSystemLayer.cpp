#include "framework/systems/CGisSystemLayer.h"

#include <utility>

namespace XimoGis::System {

CGisSystemLayer::CGisSystemLayer(std::wstring reference, std::wstring layerName, int colorIndex,
                                 std::wstring linetypeName)
    : m_reference(std::move(reference)),
      m_layerName(std::move(layerName)),
      m_colorIndex(colorIndex),
      m_linetypeName(std::move(linetypeName)) {}

}  // namespace XimoGis::System
