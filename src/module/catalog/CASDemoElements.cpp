#include "module/catalog/CASDemoElements.h"

#include "module/catalog/CASCatalog.h"
#include "module/catalog/CASElementBlockWriter.h"
#include "module/manager/CASManager.h"
#include "module/manager/CASPluginLoader.h"

#include "framework/catalog/CCatalogManager.h"
#include "framework/catalog/CCatalogXml.h"
#include "framework/catalog/CatalogTags.h"
#include "framework/demo/CDemoCatalog.h"
#include "framework/utility/CFilePath.h"
#include "host/base/AcString.h"

#include <filesystem>

namespace XimoGis::AssemblySchemes {

namespace fs = std::filesystem;
using Utility::CFilePath;

const wchar_t* const CASDemoElements::kGateValveId = L"{E6233981-FBAB-5FD2-B5C5-B23FCA9523B3}";
const wchar_t* const CASDemoElements::kTeeId = L"{161EE42C-68AD-5B35-BF5F-C63C2361023C}";
const wchar_t* const CASDemoElements::kReducerId = L"{DAFCC50C-436C-5CBA-8CE1-C05D4025CEC7}";

namespace {

const wchar_t* const kInstallFolder = L"install/";
const wchar_t* const kBlockFolder = L"support/AssemblyElements/";

// Draws the item from every view its provider supports; names the files in the item when asked.
bool WriteItemBlocks(const std::wstring& blockFolder, Data::CCatalogItem& item, bool nameFiles, std::wstring& error) {
    const std::wstring type = CASCatalog::GetElementType(&item);
    const auto provider = CASManager::Instance()->GetAETypeProvider(type.c_str());
    if (!provider) {
        error = L"No element plug-in draws \"" + type + L"\", the element type of demo catalog item \"" +
                item.GetName() + L"\"";
        return false;
    }
    for (const enmViewDirection view : kViewDirections) {
        if (!provider->IsProjectionSupported(view)) continue;
        const std::wstring name = CASElementBlockWriter::Write(blockFolder, view, &item, *provider, error);
        if (name.empty()) return false;
        if (nameFiles) item.GetProperties().SetPropertyValue(Data::CatalogTags::kBlockTags[view - eViewTop], name);
    }
    item.GetProperties().SetPropertyValue(Data::CatalogTags::kElementType, Data::CatalogTags::kElementBlockType);
    return true;
}

}  // namespace

bool CASDemoElements::InstallPlugins(const std::wstring& pluginFolder, const std::wstring& workspaceFolder,
                                     std::wstring& error) {
    const std::vector<std::wstring> plugins = CASPluginLoader::FindPluginFiles(CFilePath::AsFolder(pluginFolder));
    if (plugins.empty()) {
        error = L"No element plug-ins in \"" + pluginFolder + L"\"";
        return false;
    }
    const fs::path install = CFilePath::ToPath(CFilePath::AsFolder(workspaceFolder) + kInstallFolder);
    std::error_code ec;
    fs::create_directories(install, ec);
    for (const std::wstring& plugin : plugins) {
        const fs::path source = CFilePath::ToPath(plugin);
        if (!ec) fs::copy_file(source, install / source.filename(), fs::copy_options::overwrite_existing, ec);
        if (ec) {
            error = L"Cannot install the element plug-in \"" + plugin + L"\" in \"" + CFilePath::ToText(install) +
                    L"\": " + acutUtf8ToWchar(ec.message());
            return false;
        }
    }
    return true;
}

bool CASDemoElements::WriteBlockFiles(const std::wstring& workspaceFolder, std::wstring& error) {
    const std::wstring folder = CFilePath::AsFolder(workspaceFolder);
    CASPluginLoader::LoadPlugins(folder + kInstallFolder);
    const auto catalog = Data::CCatalogXml::Read(Demo::CDemoCatalog::GetSourceFile(), error);
    if (!catalog) return false;
    const std::pair<const wchar_t*, bool> items[] = {{kGateValveId, true}, {kTeeId, true}, {kReducerId, false}};
    for (const auto& [id, nameFiles] : items) {
        Data::CCatalogItem* item = catalog->GetItem(id);
        if (!item) {
            error = L"The demo catalog has no item " + std::wstring(id);
            return false;
        }
        if (!WriteItemBlocks(folder + kBlockFolder, *item, nameFiles, error)) return false;
    }
    // Into the store through a file, as catalogs travel between workspaces.
    const std::wstring file = folder + L"demo-catalog.xml";
    const bool stored = Data::CCatalogXml::Write(*catalog, file, error) &&
                        Data::CCatalogManager::Instance()->ImportCatalog(folder, file, error);
    std::error_code ec;
    fs::remove(CFilePath::ToPath(file), ec);
    return stored;
}

}  // namespace XimoGis::AssemblySchemes
