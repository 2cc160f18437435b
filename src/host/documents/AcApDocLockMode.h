#pragma once
// Lock modes of a drawing document, with the host's values (they are bit patterns: a document's
// lock mode combines the modes of the locks that are held on it).

namespace AcAp {
enum DocLockMode {
    kNone = 0x00,
    kAutoWrite = 0x01,
    kNotLocked = 0x02,
    kWrite = 0x04,
    kProtectedAutoWrite = 0x14,
    kRead = 0x20,
    kXWrite = 0x40,
};
}  // namespace AcAp
