#pragma once
// Typed reads of the attributes that scheme and element instances keep on their entities. The
// entity data service hands back whatever type a value was stored with; a value of the wrong type
// (a width written as text by another program, say) reads here as absent, and is reported to the
// audit when one is given, so that damaged drawings load as far as they can.

#include "module/instances/CASAudit.h"

#include "host/database/AcDbObjectId.h"

#include <string>

class AcDbEntity;

namespace XimoGis::AssemblySchemes {

class CASEntityAttributes {
public:
    // Attributes are named by dictionary id (CDDCache) or by name; both forms read the same.
    // True, with `value` set, for an integer attribute.
    static bool ReadInt(const AcDbEntity* entity, int attributeId, int& value, CASAudit* audit = nullptr);
    static bool ReadInt(const AcDbEntity* entity, const std::wstring& name, int& value, CASAudit* audit = nullptr);
    // True for a real or an integer attribute.
    static bool ReadDouble(const AcDbEntity* entity, int attributeId, double& value, CASAudit* audit = nullptr);
    // True for a text attribute, empty text included.
    static bool ReadText(const AcDbEntity* entity, int attributeId, std::wstring& value, CASAudit* audit = nullptr);
    static bool ReadText(const AcDbEntity* entity, const std::wstring& name, std::wstring& value,
                         CASAudit* audit = nullptr);

    // The same, opening the entity for reading; false when it cannot be opened.
    static bool ReadInt(AcDbObjectId id, const std::wstring& name, int& value);
    static bool ReadText(AcDbObjectId id, const std::wstring& name, std::wstring& value);
};

}  // namespace XimoGis::AssemblySchemes
