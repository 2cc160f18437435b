#pragma once
// A drawing holding every entity kind the host has, with layers, linetypes, text styles, blocks
// with attribute definitions, references with attributes, and extended data of every value type
// (non-ASCII text included) on every entity.

#include <memory>

#include "host/database/AcDbDatabase.h"

std::unique_ptr<AcDbDatabase> makeDxfTestDrawing();
// The extended data the drawing puts on its n-th entity.
AcDbXDataList dxfTestXData(int n);
