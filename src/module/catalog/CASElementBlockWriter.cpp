#include "module/catalog/CASElementBlockWriter.h"

#include "module/catalog/CASBlockFileName.h"
#include "module/manager/IAssemblyElementTypeProvider.h"

#include "framework/catalog/CCatalogItem.h"
#include "framework/utility/CFilePath.h"
#include "framework/utility/CUtility.h"
#include "host/database/AcDbDatabase.h"

#include <filesystem>

namespace XimoGis::AssemblySchemes {

namespace {

// Makes a database the working one for the life of the object.
class CWorkingDatabaseScope {
public:
    explicit CWorkingDatabaseScope(AcDbDatabase* db) : m_previous(acdbHostApplicationServices()->workingDatabase()) {
        acdbHostApplicationServices()->setWorkingDatabase(db);
    }
    ~CWorkingDatabaseScope() { acdbHostApplicationServices()->setWorkingDatabase(m_previous); }
    CWorkingDatabaseScope(const CWorkingDatabaseScope&) = delete;
    CWorkingDatabaseScope& operator=(const CWorkingDatabaseScope&) = delete;

private:
    AcDbDatabase* m_previous;
};

}  // namespace

std::wstring CASElementBlockWriter::Write(const std::wstring& folder, enmViewDirection view, Data::CCatalogItem* item,
                                          IAssemblyElementTypeProvider& provider, std::wstring& error) {
    if (!item) {
        error = L"No catalog item given";
        return {};
    }
    const std::wstring what = L"the " + GetViewDirectionName(view) + L" view of catalog item \"" + item->GetName() +
                              L"\" by provider " + provider.GetProviderId();
    AcDbDatabase drawing;
    {
        CWorkingDatabaseScope working(&drawing);
        AcArray<AcDbObjectId> ids;
        if (!provider.IsProjectionSupported(view) ||
            !provider.DrawAEProjection(AcGePoint3d::kOrigin, view, item, nullptr, ids)) {
            std::wstring problem;
            error = L"Cannot draw " + what;
            if (!provider.CheckCatalogItem(item, problem)) error += L": " + problem;
            return {};
        }
    }
    std::error_code ec;
    std::filesystem::create_directories(Utility::CFilePath::ToPath(folder), ec);
    if (ec) {
        error = L"Cannot make the block folder \"" + folder + L"\" for " + what;
        return {};
    }
    const std::wstring name = CASBlockFileName::MakeNew(folder, view, item);
    const std::wstring file = folder + name + CASBlockFileName::kExtension;
    // The new name is tested before its blanks are replaced, so it can be taken after all.
    if (Utility::CUtility::FileExists(file)) {
        error = L"Block file \"" + file + L"\" of " + what + L" exists already; it is kept";
        return {};
    }
    if (drawing.dxfOut(file.c_str(), &error) != Acad::eOk) return {};
    return name;
}

}  // namespace XimoGis::AssemblySchemes
