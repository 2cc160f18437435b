#pragma once
// Names of element block files: one drawing per catalog item and view direction, kept in the
// element block folder as "<name>.dxf".
//
// A name is made of the item's ancestors (nearest first, each followed by "_", trailing "_"
// trimmed), "_" and the item's own name, "_" and the catalog number when it is not empty, and "_"
// and the view's value: an item "Flange" in "Fittings" in "Steel", catalog number "F-100", seen
// from view 2, is "Fittings_Steel_Flange_F-100_2". A new name must not be taken in the folder: while
// "<name>.dxf" exists, "<name>_1", "<name>_2"... are tried. Blanks become "_" only after that test,
// so a name with blanks can come out equal to a file that exists; this order is kept on purpose,
// as block files already named by it exist.

#include "module/catalog/enmViewDirection.h"

#include <string>

namespace XimoGis::Data {
class CCatalogItem;
}

namespace XimoGis::AssemblySchemes {

class CASBlockFileName {
public:
    static const wchar_t* const kExtension;  // ".dxf"

    // The name before the uniqueness test and before blanks are replaced; empty for a null item.
    static std::wstring Compose(enmViewDirection view, const Data::CCatalogItem* item);
    // A name not yet taken in `folder` (ending with a separator), without folder and extension,
    // blanks replaced; empty for a null item. With an empty folder no file is looked for.
    static std::wstring MakeNew(const std::wstring& folder, enmViewDirection view, const Data::CCatalogItem* item);
    // The name that MakeNew gives the first block of the item and view in an empty folder.
    static std::wstring GetFirstName(enmViewDirection view, const Data::CCatalogItem* item);
    static std::wstring ReplaceBlanks(std::wstring name);
};

}  // namespace XimoGis::AssemblySchemes
