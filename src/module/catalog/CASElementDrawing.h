#pragma once
// How a catalog element is drawn from a view direction: by the provider of its element type
// ("AS_ELEMENTTYPE") when one is registered and draws that view, otherwise from the item's block
// file for the view (CASElementBlock), inserted as a block definition and referenced.

#include "module/catalog/enmViewDirection.h"
#include "module/manager/IAssemblyElementTypeProvider.h"

#include "host/base/AcArray.h"
#include "host/database/AcDbObjectId.h"
#include "host/geometry/AcGePoint3d.h"

#include <boost/shared_ptr.hpp>

#include <string>

namespace XimoGis::Data {
class CCatalogItem;
}

namespace XimoGis::AssemblySchemes {

class CASDefinition;

class CASElementDrawing {
public:
    struct Source {
        boost::shared_ptr<IAssemblyElementTypeProvider> provider;  // set when the provider draws
        std::wstring blockFile;                                     // else set when the file exists
        std::wstring problem;                                       // else why neither will do
    };

    // The way the item is drawn from `view`, block files looked for in `blockFolder`.
    static Source Find(enmViewDirection view, const Data::CCatalogItem* item, const std::wstring& blockFolder);
    // Draws the item at `point` into model space of the working database: the provider's
    // projection, or a reference to the block file's definition scaled by the definition's scale
    // (1:1 without one). Appends the new ids; 0, with `error` saying why, when nothing is drawn.
    static int Draw(const AcGePoint3d& point, enmViewDirection view, Data::CCatalogItem* item,
                    CASDefinition* definition, const std::wstring& blockFolder, AcArray<AcDbObjectId>& ids,
                    std::wstring& error);
};

}  // namespace XimoGis::AssemblySchemes
