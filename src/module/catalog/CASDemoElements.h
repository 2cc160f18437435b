#pragma once
// The element parts of the demo workspace: the element plug-ins in its install folder, and block
// files for a few demo catalog items, so that the demo draws elements both ways: by the fittings
// plug-in's providers and from block files.
//
// The block files are the fittings plug-in's own drawings of three DN 100 items, one file per
// view the provider draws, saved in "support/AssemblyElements/" under names given by the block
// naming (CASBlockFileName). Those items are then made block items: their "AS_ELEMENTTYPE"
// becomes the block item type "ELEMENT_BLOCK01", which no provider has. The gate valve and the tee
// name their files in "AS_BLOCK1".."AS_BLOCK6"; the reducer names none and is found by the naming
// rule. Both steps take the demo workspace's folders as built: "install/" and "support/".

#include <string>

namespace XimoGis::AssemblySchemes {

class CASDemoElements {
public:
    // Ids of the demo catalog items that come as block files.
    static const wchar_t* const kGateValveId;  // "E 100 PN16"
    static const wchar_t* const kTeeId;        // "T 100x100 PN16"
    static const wchar_t* const kReducerId;    // "FFR 100x80 PN16"

    // Copies the element plug-in files of `pluginFolder` into the workspace's install folder;
    // false, with `error` saying why, when there are none or one cannot be copied.
    static bool InstallPlugins(const std::wstring& pluginFolder, const std::wstring& workspaceFolder,
                               std::wstring& error);
    // Loads the plug-ins of the workspace's install folder, writes the block files and stores the
    // changed items in the workspace's catalog (the demo catalog must be in its store).
    static bool WriteBlockFiles(const std::wstring& workspaceFolder, std::wstring& error);
};

}  // namespace XimoGis::AssemblySchemes
