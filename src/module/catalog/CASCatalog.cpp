#include "module/catalog/CASCatalog.h"

#include "framework/catalog/CCatalogManager.h"
#include "framework/catalog/CatalogTags.h"

namespace XimoGis::AssemblySchemes {

using Data::CatalogTags::kAssemblySchemesCatalog;

const wchar_t* const CASCatalog::kCatalogName = kAssemblySchemesCatalog;

Data::CCatalog* CASCatalog::GetCatalog(std::wstring& error) {
    return Data::CCatalogManager::Instance()->GetCatalog(kCatalogName, error);
}

Data::CCatalogItem* CASCatalog::GetItem(const std::wstring& id) {
    return Data::CCatalogManager::Instance()->GetCatalogItem(kCatalogName, id);
}

std::wstring CASCatalog::GetElementType(const Data::CCatalogItem* item) {
    const auto property = item ? item->GetProperty(Data::CatalogTags::kElementType) : nullptr;
    return property ? property->GetValue().GetText() : std::wstring();
}

std::wstring CASCatalog::GetCatalogNumber(const Data::CCatalogItem* item) {
    const auto property = item ? item->GetProperty(Data::CatalogTags::kCatalogNumber) : nullptr;
    if (!property) return {};
    if (!property->GetHiddenValue().IsNull()) return property->GetHiddenValue().GetText();
    return property->GetValue().GetText();
}

std::wstring CASCatalog::GetBlockReference(const Data::CCatalogItem* item, enmViewDirection view) {
    if (!item || !IsViewDirection(view)) return {};
    const auto property = item->GetProperty(Data::CatalogTags::kBlockTags[view - eViewTop]);
    return property ? property->GetValue().GetText() : std::wstring();
}

}  // namespace XimoGis::AssemblySchemes
