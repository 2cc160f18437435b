#pragma once
// Finds and loads element plug-ins (see IAssemblyElementPlugin): every file of a folder whose name
// matches "XimoXAssemblyElement*.so", in the order the file system lists them. Each is loaded
// with dlopen, its export "GetAssemblyElementPlugin" is looked up with dlsym, called, and the
// plug-in it returns registers its element types. A file that does not load or lacks the export
// is skipped without a word and the next one is tried. Loaded libraries are never unloaded.

#include <string>
#include <vector>

namespace XimoGis::AssemblySchemes {

class CASPluginLoader {
public:
    static const char* const kExportName;        // "GetAssemblyElementPlugin"
    static const wchar_t* const kFilePrefix;     // "XimoXAssemblyElement"
    static const wchar_t* const kFileExtension;  // ".so"

    // Whether a file name (without folder) matches the plug-in pattern; the match is exact, as
    // file names on this system are case-sensitive.
    static bool IsPluginFileName(const std::wstring& fileName);
    // The full paths of the matching files in `folder`; empty for an empty or unreadable folder.
    static std::vector<std::wstring> FindPluginFiles(const std::wstring& folder);
    // Loads the plug-ins of `folder`; returns how many registered their element types.
    static int LoadPlugins(const std::wstring& folder);
    // Loads one plug-in library; 1 when its element types were registered, else 0.
    static int LoadPlugin(const std::wstring& file);
};

}  // namespace XimoGis::AssemblySchemes
