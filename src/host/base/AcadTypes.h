#pragma once
// Basic types, status codes and modes of the drawing host, under the host's own names.

#include <cstdint>

using ACHAR = wchar_t;

namespace Adesk {
using Int8 = std::int8_t;
using Int16 = std::int16_t;
using Int32 = std::int32_t;
using Int64 = std::int64_t;
using UInt8 = std::uint8_t;
using UInt16 = std::uint16_t;
using UInt32 = std::uint32_t;
using UInt64 = std::uint64_t;
using Boolean = bool;
using IntDbId = std::uint32_t;
constexpr bool kTrue = true;
constexpr bool kFalse = false;
}  // namespace Adesk

namespace Acad {
enum ErrorStatus {
    eOk = 0,
    eNotImplementedYet,
    eNotApplicable,
    eInvalidInput,
    eNullObjectId,
    eNullObjectPointer,
    eNullEntityPointer,
    eNotInDatabase,
    eAlreadyInDb,
    eWasErased,
    eWasOpenForRead,
    eWasOpenForWrite,
    eNotOpenForRead,
    eNotOpenForWrite,
    eAtMaxReaders,
    eWasNotOpenForWrite,
    eNotThatKindOfClass,
    eKeyNotFound,
    eDuplicateRecordName,
    eDuplicateKey,
    eInvalidIndex,
    eInvalidResBuf,
    eInvalidDxfCode,
    eBadDxfSequence,
    eInvalidDxfFile,
    eFileNotFound,
    eFileAccessErr,
    eFilerError,
    eDegenerateGeometry,
    eInvalidExtents,
    eRegappIdNotFound,
    eXdataSizeExceeded,
    eLockViolation,
    eNoDocument,
    eCannotBeErasedByCaller,
};
}  // namespace Acad

namespace AcDb {
enum OpenMode { kForRead = 0, kForWrite = 1, kForNotify = 2 };

enum TextHorzMode { kTextLeft = 0, kTextCenter = 1, kTextRight = 2, kTextAlign = 3, kTextMid = 4, kTextFit = 5 };
enum TextVertMode { kTextBase = 0, kTextBottom = 1, kTextVertMid = 2, kTextTop = 3 };

// Colour index 256 takes the layer's colour, 0 the block's.
constexpr Adesk::UInt16 kColorByLayer = 256;
constexpr Adesk::UInt16 kColorByBlock = 0;
}  // namespace AcDb

// Names of the host's fixed records.
#define ACDB_MODEL_SPACE L"*Model_Space"
#define ACDB_PAPER_SPACE L"*Paper_Space"
