#include "module/catalog/CASElementBlock.h"

#include "module/catalog/CASBlockFileName.h"
#include "module/catalog/CASCatalog.h"

#include "framework/catalog/CCatalogItem.h"
#include "framework/utility/CFilePath.h"
#include "framework/utility/CUtility.h"

#include <cwctype>

namespace XimoGis::AssemblySchemes {

namespace {

bool HasBlockExtension(const std::wstring& name) {
    const std::wstring extension = CASBlockFileName::kExtension;
    if (name.size() < extension.size()) return false;
    for (std::size_t i = 0; i < extension.size(); ++i) {
        if (static_cast<wchar_t>(std::towlower(name[name.size() - extension.size() + i])) != extension[i]) return false;
    }
    return true;
}

}  // namespace

std::wstring CASElementBlock::FindFile(const std::wstring& folder, enmViewDirection view,
                                       const Data::CCatalogItem* item, std::wstring* error) {
    if (!item) {
        if (error) *error = L"No catalog item given";
        return {};
    }
    std::wstring name = CASCatalog::GetBlockReference(item, view);
    if (!name.empty() && !HasBlockExtension(name)) name += CASBlockFileName::kExtension;
    if (name.empty()) name = CASBlockFileName::GetFirstName(view, item) + CASBlockFileName::kExtension;
    const std::wstring file = folder + name;
    if (Utility::CUtility::FileExists(file)) return file;
    if (error) {
        *error = L"No block file \"" + file + L"\" for the " + GetViewDirectionName(view) +
                 L" view of catalog item \"" + item->GetName() + L"\" (" + item->GetId() + L")";
    }
    return {};
}

Acad::ErrorStatus CASElementBlock::InsertDefinition(AcDbDatabase& db, const std::wstring& file,
                                                    AcDbObjectId& blockId, std::wstring& error) {
    const std::wstring name = Utility::CFilePath::ToText(Utility::CFilePath::ToPath(file).stem());
    blockId = db.blockId(name);
    if (!blockId.isNull()) return Acad::eOk;
    AcDbDatabase source(false);
    Acad::ErrorStatus status = source.dxfIn(file.c_str(), &error);
    if (status != Acad::eOk) return status;
    status = db.insert(blockId, name.c_str(), &source);
    if (status != Acad::eOk) error = L"Cannot insert the block file \"" + file + L"\" as block \"" + name + L"\"";
    return status;
}

Acad::ErrorStatus CASElementBlock::Insert(AcDbDatabase& db, const std::wstring& folder, enmViewDirection view,
                                          const Data::CCatalogItem* item, AcDbObjectId& blockId, std::wstring& error) {
    const std::wstring file = FindFile(folder, view, item, &error);
    if (file.empty()) return Acad::eNotApplicable;
    return InsertDefinition(db, file, blockId, error);
}

}  // namespace XimoGis::AssemblySchemes
