#pragma once
// The six directions from which an element of a scheme is drawn. Each value is part of the names
// of element block files ("..._4.dxf" shows the element from the front) and picks the catalog item
// property that names the block file of the view ("AS_BLOCK4"), so the values never change.

#include <string>

namespace XimoGis::AssemblySchemes {

enum enmViewDirection : int {
    eViewTop = 1,     // looking down: the plan of the element
    eViewBottom = 2,  // looking up
    eViewBack = 3,
    eViewFront = 4,   // looking along the element's depth: its elevation
    eViewLeft = 5,    // looking along the element's main axis, from its first connection
    eViewRight = 6,
};

inline constexpr enmViewDirection kViewDirections[] = {eViewTop,  eViewBottom, eViewBack,
                                                       eViewFront, eViewLeft,  eViewRight};

// "top", "bottom", "back", "front", "left", "right"; empty for any other value.
std::wstring GetViewDirectionName(enmViewDirection view);
// One of those names or a value ("4"); false, leaving `view` alone, for anything else.
bool ParseViewDirection(const std::wstring& text, enmViewDirection& view);
bool IsViewDirection(int value);

}  // namespace XimoGis::AssemblySchemes
