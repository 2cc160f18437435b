#pragma once
// What the user changes in the definition editor's fields, given beforehand since this build has
// no windows. Whether the user then confirms is read from the input script.

#include <string>
#include <utility>
#include <vector>

namespace XimoGis::AssemblySchemes {

struct CASDefinitionEdit {
    // A component of a registered type to add at an offset on the sheet.
    struct NewComponent {
        std::wstring typeId;  // "00FRAME", "04BOM"...
        double offx = 0.0;
        double offy = 0.0;
    };

    std::wstring name;  // empty keeps the name
    std::vector<std::pair<std::wstring, std::wstring>> properties;  // tag and value, set in this order
    std::vector<std::wstring> removedComponents;  // internal ids, removed before components are added
    std::vector<NewComponent> addedComponents;
};

}  // namespace XimoGis::AssemblySchemes
