#include "module/catalog/CASBlockFileName.h"

#include "module/catalog/CASCatalog.h"

#include "framework/catalog/CCatalogItem.h"
#include "framework/utility/CUtility.h"

#include <algorithm>

namespace XimoGis::AssemblySchemes {

const wchar_t* const CASBlockFileName::kExtension = L".dxf";

std::wstring CASBlockFileName::Compose(enmViewDirection view, const Data::CCatalogItem* item) {
    if (!item) return {};
    std::wstring ancestors;
    for (const Data::CCatalogItem* parent = item->GetParentItem(); parent; parent = parent->GetParentItem())
        ancestors += parent->GetName() + L"_";
    ancestors.erase(ancestors.find_last_not_of(L'_') + 1);  // npos + 1 == 0: all underscores go
    std::wstring name = ancestors + L"_" + item->GetName();
    const std::wstring number = CASCatalog::GetCatalogNumber(item);
    if (!number.empty()) name += L"_" + number;
    return name + L"_" + std::to_wstring(static_cast<int>(view));
}

std::wstring CASBlockFileName::MakeNew(const std::wstring& folder, enmViewDirection view,
                                       const Data::CCatalogItem* item) {
    const std::wstring base = Compose(view, item);
    if (base.empty()) return {};
    std::wstring name = base;
    const auto taken = [&folder](const std::wstring& candidate) {
        return !folder.empty() && Utility::CUtility::FileExists(folder + candidate + kExtension);
    };
    for (int counter = 1; taken(name); ++counter) name = base + L"_" + std::to_wstring(counter);
    return ReplaceBlanks(name);
}

std::wstring CASBlockFileName::GetFirstName(enmViewDirection view, const Data::CCatalogItem* item) {
    return ReplaceBlanks(Compose(view, item));
}

std::wstring CASBlockFileName::ReplaceBlanks(std::wstring name) {
    std::replace(name.begin(), name.end(), L' ', L'_');
    return name;
}

}  // namespace XimoGis::AssemblySchemes
