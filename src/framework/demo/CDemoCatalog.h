#pragma once
// The demo element catalog "ASSEMBLYSCHEMES_CATALOG", shipped as text with the sources
// ("data/demo/ASSEMBLYSCHEMES_CATALOG.xml", in the form CCatalogXml reads): flanged fittings,
// gate valves and hydrants in groups, DN 80 to 200, PN 10/16.

#include <string>

namespace XimoGis::Demo {

class CDemoCatalog {
public:
    static std::wstring GetSourceFile();
    // Puts the demo catalog into the store of the workspace in `workspaceFolder` (the store must
    // exist), replacing a catalog of the same name.
    static bool Import(const std::wstring& workspaceFolder, std::wstring& error);
};

}  // namespace XimoGis::Demo
