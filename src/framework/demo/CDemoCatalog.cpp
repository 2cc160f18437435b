#include "framework/demo/CDemoCatalog.h"

#include "framework/catalog/CCatalogManager.h"
#include "framework/utility/CFilePath.h"

#include <filesystem>

namespace XimoGis::Demo {

std::wstring CDemoCatalog::GetSourceFile() {
    return Utility::CFilePath::ToText(std::filesystem::path(XIMO_DATA_DIR) / "demo" / "ASSEMBLYSCHEMES_CATALOG.xml");
}

bool CDemoCatalog::Import(const std::wstring& workspaceFolder, std::wstring& error) {
    return Data::CCatalogManager::Instance()->ImportCatalog(workspaceFolder, GetSourceFile(), error);
}

}  // namespace XimoGis::Demo
