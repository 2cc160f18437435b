#pragma once
// Locks the current document for the lifetime of the object, as the CAD wrapper's callers expect
// while they change the drawing.

#include "host/documents/AcAxDocLock.h"

namespace XimoGis {

class CXimoCDocLock {
public:
    CXimoCDocLock() = default;
    CXimoCDocLock(const CXimoCDocLock&) = delete;
    CXimoCDocLock& operator=(const CXimoCDocLock&) = delete;

    // False when no document is open (nothing to lock).
    bool IsLocked() const { return m_lock.lockStatus() == Acad::eOk; }

private:
    AcAxDocLock m_lock;
};

}  // namespace XimoGis
