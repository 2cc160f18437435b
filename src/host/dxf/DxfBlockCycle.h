#pragma once
// Blocks that insert themselves, directly or through other blocks: a drawing holding one cannot
// be drawn or measured (every walk through the block would go on for ever).

#include <string>

#include "host/database/AcDbDatabase.h"

// The name of a block that inserts itself; empty when none does.
std::wstring dxfBlockInsertingItself(const AcDbDatabase& db);
