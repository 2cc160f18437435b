#pragma once
// Saves the drawing that an element type provider makes of a catalog item as a block file of the
// element block folder, so that the item can be drawn from blocks where the provider is missing.
// The drawing is made at 1:1 (millimetres) with the first connection at the origin, as every
// block file is.

#include "module/catalog/enmViewDirection.h"

#include <string>

namespace XimoGis::Data {
class CCatalogItem;
}

namespace XimoGis::AssemblySchemes {

class IAssemblyElementTypeProvider;

class CASElementBlockWriter {
public:
    // Draws the item from `view` into a new drawing and saves it in `folder` (created when
    // missing) under a new block name (CASBlockFileName::MakeNew). Returns that name, without
    // folder and extension; empty, with `error` saying why, when the provider does not draw the
    // view or the file cannot be written. A file of that name is never replaced (names with
    // blanks can come out taken). The working database is the same before and after.
    static std::wstring Write(const std::wstring& folder, enmViewDirection view, Data::CCatalogItem* item,
                              IAssemblyElementTypeProvider& provider, std::wstring& error);
};

}  // namespace XimoGis::AssemblySchemes
