#pragma once
// One drawing layer of a network system, found by its reference: "SCHEME" for everything of a
// scheme sheet, "SCHEME_NP" for the sheet corner points, and one per scheme component id
// ("01SCHEME", "04BOM"...). The layer's look is the system's choice.

#include <string>

namespace XimoGis::System {

class CGisSystemLayer {
public:
    CGisSystemLayer() = default;
    CGisSystemLayer(std::wstring reference, std::wstring layerName, int colorIndex, std::wstring linetypeName);

    const std::wstring& GetReference() const { return m_reference; }
    const std::wstring& GetLayerName() const { return m_layerName; }
    // Colour index of the host's palette (1..255; 256 by layer is meaningless for a layer).
    int GetColorIndex() const { return m_colorIndex; }
    const std::wstring& GetLinetypeName() const { return m_linetypeName; }

    bool operator==(const CGisSystemLayer& other) const = default;

private:
    std::wstring m_reference;
    std::wstring m_layerName;
    int m_colorIndex = 7;
    std::wstring m_linetypeName = L"Continuous";
};

}  // namespace XimoGis::System
