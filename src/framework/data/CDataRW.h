#pragma once
// Reading and writing attribute values on drawing entities.
//
// Values live in the entity's extended data under the framework's registered application
// "XIMOGIS" as name/value pairs: a 1000 string with the attribute name, then the value as a 1071
// integer, a 1040 real or a 1000 string. They survive saving and reopening the drawing, and other
// programs see them as ordinary extended data.

#include <string>

#include "framework/data/CDataBox.h"
#include "host/entities/AcDbEntity.h"

namespace XimoGis::Topology {
class CNetworkEntity;
}

namespace XimoGis::Data {

class CDataDefinition;

class CDataRW {
public:
    static constexpr const wchar_t* kApplication = L"XIMOGIS";

    // Writes or replaces the value. The entity must be open for write; a null value removes the
    // attribute. False when nothing could be written.
    static bool Write(AcDbEntity* entity, int attributeId, const CDataBox& value);
    static bool Write(AcDbEntity* entity, const std::wstring& attributeName, const CDataBox& value);
    // Opens the entity for write, writes and closes it; an entity that cannot be opened is skipped.
    static bool Write(AcDbObjectId id, int attributeId, const CDataBox& value);
    static bool Write(AcDbObjectId id, const std::wstring& attributeName, const CDataBox& value);

    // Reads the value; false for an absent attribute, leaving value as it was.
    static bool Read(const AcDbEntity* entity, int attributeId, CDataBox& value);
    static bool Read(const AcDbEntity* entity, const std::wstring& attributeName, CDataBox& value);
    static bool Read(AcDbObjectId id, int attributeId, CDataBox& value);
    static bool Read(AcDbObjectId id, const std::wstring& attributeName, CDataBox& value);

    // Reads a network node's or section's value of a data definition into `value`, typed as the
    // definition's column. True when the entity has that data; `value` is then the value, or null
    // when the entity holds none. False, with `value` null, for a missing entity or definition or
    // a definition of the other layer.
    static bool Read(const Topology::CNetworkEntity* entity, const CDataDefinition* definition, CDataBox& value);
};

}  // namespace XimoGis::Data
