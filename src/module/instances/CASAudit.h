#pragma once
// What a rescan of a drawing found wrong with the attributes of scheme and element entities, and
// what it did about it: one coded entry per finding, naming the entity by handle. A rescan never
// stops for damaged attributes; it reads what it can and lists the rest here.

#include "host/base/AcadTypes.h"
#include "host/database/AcDbObjectId.h"

#include <string>
#include <vector>

namespace XimoGis::AssemblySchemes {

// The codes are stable: tools and logs refer to them by number.
enum enmASAuditCode {
    aacWrongAttributeType = 1,   // an attribute holds a value of another type; read as if absent
    aacMissingGuid = 2,          // a sheet or element entity without the sheet's Guid; skipped
    aacMissingInternalTag = 3,   // a sheet entity without an internal tag; skipped
    aacUnknownInternalTag = 4,   // an internal tag other than 1, 2, 4 or 8; skipped
    aacMissingComponentId = 5,   // a component entity without a component id; skipped
    aacUnknownComponentId = 6,   // a component id that no component type has; kept under that id
    aacMissingElementId = 7,     // an element entity without an element id; skipped
    aacBasePointNotAPoint = 8,   // the base point entity is not a point; the base point is not read
    aacNoGeneralData = 9,        // a sheet whose definition and size no general entity gave
    aacNoDataHolder = 10,        // an element none of whose entities holds its data; counts as ignored
    aacNoReferredNumber = 11,    // an ignored element whose referred element gives no number
};

struct CASAuditProblem {
    enmASAuditCode code;
    Adesk::UInt32 handle;  // 0 when no entity can be named
    std::wstring message;
};

class CASAudit {
public:
    void Add(enmASAuditCode code, AcDbObjectId entity, const std::wstring& message);
    void Clear() { m_problems.clear(); }
    const std::vector<CASAuditProblem>& GetProblems() const { return m_problems; }

    // The code's name in capitals ("MISSING_GUID"); "UNKNOWN" for a number outside the list.
    static const wchar_t* GetCodeName(int code);
    // A handle as the drawing writes it: upper-case hexadecimal; empty for 0.
    static std::wstring FormatHandle(Adesk::UInt32 handle);

private:
    std::vector<CASAuditProblem> m_problems;
};

}  // namespace XimoGis::AssemblySchemes
