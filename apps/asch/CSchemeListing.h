#pragma once
// What "asch list" prints about the schemes of a rescanned drawing: a table for people, or JSON
// for programs. Both name every sheet (id, definition, node, base point, size, entities per
// component) and every element on it (id, catalog item, provider, position number, ignored);
// the JSON also gives the entities by handle and the findings of the rescan.
//
// JSON:
//   {"drawing": PATH, "system": ID or null,
//    "schemes": [{"id", "definition", "node", "basePoint": [x, y, z], "width", "height",
//                 "generalEntities": [HANDLE, HANDLE, HANDLE]  ("" for none),
//                 "components": [{"id", "entities": [HANDLE...]}...],
//                 "elements": [{"id", "catalog", "provider", "position", "ignored", "referred",
//                               "dataHolder", "entities": [HANDLE...]}...]}...],
//    "problems": [{"code", "name", "handle", "message"}...]}
// Handles are upper-case hexadecimal, as the drawing writes them.

#include "module/instances/CASInstanceStorage.h"

#include <ostream>
#include <string>

namespace XimoGis::Asch {

class CSchemeListing {
public:
    static void PrintTable(const AssemblySchemes::CASInstanceStorage& storage, std::ostream& out);
    // systemId 0 for a scan of every system.
    static void PrintJson(const AssemblySchemes::CASInstanceStorage& storage, const std::wstring& drawing,
                          int systemId, std::ostream& out);
};

}  // namespace XimoGis::Asch
