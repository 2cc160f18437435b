#pragma once
// The data dictionary cache: ids of the attributes the framework writes onto drawing entities.
// Each id stands for an attribute name; the name is what is stored in the drawing, so files stay
// readable by other programs.

#include <string>

namespace XimoGis::Data {

class CDDCache {
public:
    static int GetSystemId() { return 1; }
    static int GetGuid() { return 2; }
    static int GetASDefinitionId() { return 3; }
    static int GetASInternalTag() { return 4; }
    static int GetEntityType() { return 5; }
    static int GetASRefNode() { return 6; }
    static int GetASWidth() { return 7; }
    static int GetASHeight() { return 8; }
    static int GetASComponentId() { return 9; }
    static int GetASElementId() { return 10; }
    static int GetASElementTypeId() { return 11; }
    static int GetASElementCatalogId() { return 12; }
    static int GetASElementIgnore() { return 13; }

    // The stored name of an attribute id ("AS_WIDTH"); empty for an unknown id.
    static std::wstring GetAttributeName(int attributeId);
    // The id of a stored name; 0 for a name outside the dictionary.
    static int GetAttributeId(const std::wstring& name);
};

}  // namespace XimoGis::Data
