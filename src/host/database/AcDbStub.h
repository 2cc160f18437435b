#pragma once
// The database's record of one object: identity, ownership, erase and open state.
// Internal to the host layer; code outside it goes through AcDbObjectId.

#include <memory>

#include "host/database/AcDbObjectId.h"

class AcDbObject;

struct AcDbStub {
    AcDbDatabase* database = nullptr;
    Adesk::UInt32 handle = 0;
    std::unique_ptr<AcDbObject> object;
    AcDbObjectId owner;
    bool erased = false;
    int readers = 0;
    bool writer = false;
};
