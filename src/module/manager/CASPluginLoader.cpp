#include "module/manager/CASPluginLoader.h"

#include "module/manager/IAssemblyElementPlugin.h"

#include "framework/utility/CFilePath.h"
#include "host/base/AcString.h"

#include <dlfcn.h>

#include <filesystem>

namespace XimoGis::AssemblySchemes {

namespace fs = std::filesystem;
using Utility::CFilePath;

const char* const CASPluginLoader::kExportName = "GetAssemblyElementPlugin";
const wchar_t* const CASPluginLoader::kFilePrefix = L"XimoXAssemblyElement";
const wchar_t* const CASPluginLoader::kFileExtension = L".so";

bool CASPluginLoader::IsPluginFileName(const std::wstring& fileName) {
    const std::wstring prefix = kFilePrefix;
    const std::wstring extension = kFileExtension;
    return fileName.size() >= prefix.size() + extension.size() && fileName.starts_with(prefix) &&
           fileName.ends_with(extension);
}

std::vector<std::wstring> CASPluginLoader::FindPluginFiles(const std::wstring& folder) {
    std::vector<std::wstring> files;
    if (folder.empty()) return files;
    std::error_code ec;
    for (fs::directory_iterator it(CFilePath::ToPath(folder), ec), end; !ec && it != end; it.increment(ec)) {
        if (it->is_directory(ec)) continue;
        if (IsPluginFileName(CFilePath::ToText(it->path().filename()))) files.push_back(CFilePath::ToText(it->path()));
    }
    return files;
}

int CASPluginLoader::LoadPlugins(const std::wstring& folder) {
    int loaded = 0;
    for (const std::wstring& file : FindPluginFiles(folder)) loaded += LoadPlugin(file);
    return loaded;
}

int CASPluginLoader::LoadPlugin(const std::wstring& file) {
    // RTLD_NOW: a library with unresolved symbols fails here, where it is skipped, not later.
    void* library = ::dlopen(acutWcharToUtf8(file).c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        ::dlerror();  // clears the message: failures are silent
        return 0;
    }
    // Never unloaded, not even without the export: loading may have run its static constructors.
    auto function = reinterpret_cast<GetAssemblyElementPluginFunction>(::dlsym(library, kExportName));
    if (!function) {
        ::dlerror();
        return 0;
    }
    IAssemblyElementPlugin* plugin = function();
    if (!plugin) return 0;
    plugin->RegisterElementTypes();
    return 1;
}

}  // namespace XimoGis::AssemblySchemes
