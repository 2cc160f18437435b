#pragma once
// Resolves what an entity looks like: its colour index and linetype after "by layer" and
// "by block", whether its layer shows, its text style. Reads the drawing's tables once.

#include <string>
#include <unordered_map>
#include <vector>

#include "host/database/AcDbDatabase.h"
#include "host/entities/AcDbBlockReference.h"

// What the entities of a block take from the reference that inserts them.
struct AcSvgInherited {
    // "By block" colour and linetype; in model space black (7) and solid.
    Adesk::UInt16 color = 7;
    std::wstring linetype = L"Continuous";
    // Entities on layer "0" in a block show on the reference's layer; empty in model space.
    std::wstring layer;
};

struct AcSvgTextStyle {
    double widthFactor = 1.0;
    // CSS font family list.
    std::string fontFamily = "sans-serif";
};

class AcSvgProperties {
public:
    explicit AcSvgProperties(const AcDbDatabase& db);

    // The layer the entity shows on.
    std::wstring layerOf(const AcDbEntity& entity, const AcSvgInherited& inherited) const;
    // False when that layer is off or frozen.
    bool isVisible(const AcDbEntity& entity, const AcSvgInherited& inherited) const;
    // Colour index 1..255.
    Adesk::UInt16 colorOf(const AcDbEntity& entity, const AcSvgInherited& inherited) const;
    // A linetype name other than ByLayer or ByBlock.
    std::wstring linetypeOf(const AcDbEntity& entity, const AcSvgInherited& inherited) const;
    // The linetype's dash pattern in drawing units; empty for solid or unknown linetypes.
    const std::vector<double>& dashesOf(const std::wstring& linetype) const;
    // What the entities of the reference's block inherit.
    AcSvgInherited inheritedFrom(const AcDbBlockReference& reference, const AcSvgInherited& outer) const;
    // The style by name; the defaults for an unknown one.
    AcSvgTextStyle textStyle(const std::wstring& name) const;

private:
    struct Layer {
        Adesk::UInt16 color = 7;
        std::wstring linetype = L"Continuous";
        bool visible = true;
    };
    const Layer* layer(const std::wstring& name) const;

    std::unordered_map<std::wstring, Layer> m_layers;                // by upper-case name
    std::unordered_map<std::wstring, std::vector<double>> m_dashes;  // by upper-case name
    std::unordered_map<std::wstring, AcSvgTextStyle> m_styles;       // by upper-case name
};
