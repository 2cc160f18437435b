#pragma once
// The host's colour index palette (ACI): index 1..255 to RGB, as the host shows them on screen.

#include <string>

#include "host/base/AcadTypes.h"

// 0xRRGGBB for a colour index 1..255; 7 is white as the host keeps it. Indexes outside the range
// (0 by block, 256 by layer) have no colour of their own and give black.
Adesk::UInt32 acsvgAciToRgb(Adesk::UInt16 index);
// "#rrggbb".
std::string acsvgRgbHex(Adesk::UInt32 rgb);
