#pragma once
// A scheme definition as readable text: its item fields and scale, its components as a tree
// under their parents with type, internal id and offsets, and every property set with tags,
// values and the names of the properties in the user's language.

#include <ostream>

namespace XimoGis::AssemblySchemes {
class CASDefinition;
}

namespace XimoGis::Asch {

class CDefinitionOutline {
public:
    static void Print(AssemblySchemes::CASDefinition& definition, std::ostream& out);
};

}  // namespace XimoGis::Asch
