#include "host/database/AcDbObjectId.h"

#include "host/database/AcDbStub.h"

const AcDbObjectId AcDbObjectId::kNull;

bool AcDbObjectId::isValid() const { return m_stub != nullptr && m_stub->database != nullptr && m_stub->object; }
bool AcDbObjectId::isErased() const { return m_stub != nullptr && m_stub->erased; }
AcDbDatabase* AcDbObjectId::database() const { return m_stub ? m_stub->database : nullptr; }
Adesk::UInt32 AcDbObjectId::handle() const { return m_stub ? m_stub->handle : 0; }
