#pragma once
// Reading an element's block for a view: which block file of the element block folder shows a
// catalog item from a view direction, and its model space inserted into a drawing as a block
// definition. Block files are drawn at 1:1 in millimetres; whoever places a reference scales it.
//
// The file of a view is the one the item names in its "AS_BLOCK<view value>" property ("NAME" or
// "NAME.dxf" in the block folder). An item that names none for the view falls back to the name
// its first block for that view is saved under (CASBlockFileName::GetFirstName). A named file
// that is missing is a fault of the catalog and is reported; the naming rule is not tried then.

#include "module/catalog/enmViewDirection.h"

#include "host/database/AcDbDatabase.h"

#include <string>

namespace XimoGis::Data {
class CCatalogItem;
}

namespace XimoGis::AssemblySchemes {

class CASElementBlock {
public:
    // The path of the item's existing block file for the view in `folder` (ending with a
    // separator); empty when there is none, with `error` naming the file looked for and the item.
    static std::wstring FindFile(const std::wstring& folder, enmViewDirection view, const Data::CCatalogItem* item,
                                 std::wstring* error = nullptr);
    // Reads the drawing `file` and inserts its model space into `db` as a block definition named
    // after the file (without folder and extension). A definition of that name already in `db` is
    // used as it is. Fails, `db` unchanged and `error` naming the file, when it cannot be read.
    static Acad::ErrorStatus InsertDefinition(AcDbDatabase& db, const std::wstring& file, AcDbObjectId& blockId,
                                              std::wstring& error);
    // FindFile, then InsertDefinition; eNotApplicable when the item has no block file for the view.
    static Acad::ErrorStatus Insert(AcDbDatabase& db, const std::wstring& folder, enmViewDirection view,
                                    const Data::CCatalogItem* item, AcDbObjectId& blockId, std::wstring& error);
};

}  // namespace XimoGis::AssemblySchemes
