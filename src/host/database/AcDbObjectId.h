#pragma once
// The identity of a database-resident object. Ids are small values that point to the database's
// record of the object (its stub); they never own anything. An id stays valid while its database
// lives, also after the object is erased.

#include <cstddef>
#include <functional>

#include "host/base/AcadTypes.h"

class AcDbDatabase;
struct AcDbStub;

class AcDbObjectId {
public:
    AcDbObjectId() = default;

    static const AcDbObjectId kNull;

    bool isNull() const { return m_stub == nullptr; }
    bool isValid() const;
    bool isErased() const;
    void setNull() { m_stub = nullptr; }
    AcDbDatabase* database() const;
    // The object's handle: a stable 32-bit value, kept through save and load, used in log lines.
    Adesk::UInt32 handle() const;
    Adesk::IntDbId asOldId() const { return handle(); }

    bool operator==(const AcDbObjectId& o) const { return m_stub == o.m_stub; }
    bool operator!=(const AcDbObjectId& o) const { return m_stub != o.m_stub; }
    bool operator<(const AcDbObjectId& o) const { return std::less<const AcDbStub*>()(m_stub, o.m_stub); }
    explicit operator bool() const { return !isNull(); }

private:
    friend class AcDbDatabase;
    friend struct std::hash<AcDbObjectId>;
    explicit AcDbObjectId(AcDbStub* stub) : m_stub(stub) {}
    AcDbStub* m_stub = nullptr;
};

template <>
struct std::hash<AcDbObjectId> {
    std::size_t operator()(const AcDbObjectId& id) const noexcept { return std::hash<const void*>()(id.m_stub); }
};
