#pragma once
// The element catalog of the schemes, "ASSEMBLYSCHEMES_CATALOG" of the open workspace, and the
// item properties that the module itself reads: the element type that picks a provider, the
// catalog number that names block files and the block file named for each view direction.

#include "module/catalog/enmViewDirection.h"

#include <string>

namespace XimoGis::Data {
class CCatalog;
class CCatalogItem;
}  // namespace XimoGis::Data

namespace XimoGis::AssemblySchemes {

class CASCatalog {
public:
    static const wchar_t* const kCatalogName;

    // The catalog; null, with `error` naming the store and the fault, when it cannot be read.
    static Data::CCatalog* GetCatalog(std::wstring& error);
    // Null when the catalog cannot be read or holds no item with this id.
    static Data::CCatalogItem* GetItem(const std::wstring& id);

    // "AS_ELEMENTTYPE" as text: the id of the provider that draws the item. Empty when the item is
    // null, has no such property or its value is null.
    static std::wstring GetElementType(const Data::CCatalogItem* item);
    // "AS_CATALOGNUM": its hidden value when that is not null, else its shown value when that is
    // not null, else empty. An empty hidden value wins over a shown one: it is not null.
    static std::wstring GetCatalogNumber(const Data::CCatalogItem* item);
    // "AS_BLOCK1" .. "AS_BLOCK6", by the view's value: the block file the item names for the view
    // (a name in the element block folder, with or without ".dxf"); empty when not set.
    static std::wstring GetBlockReference(const Data::CCatalogItem* item, enmViewDirection view);
};

}  // namespace XimoGis::AssemblySchemes
