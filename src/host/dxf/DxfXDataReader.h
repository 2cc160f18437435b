#pragma once
// Extended data of an object, read from its groups: a 1001 group starts an application, the
// value groups after it belong to it, in order. A point's 1010 group takes the 1020 and 1030
// after it. 1070 stays a 16-bit and 1071 a 32-bit integer.
//
// dxflib reports extended data through callbacks that come before the object they belong to,
// split points into three reals and parse reals through a stream; reading the groups directly
// avoids all three.

#include "host/database/AcDbXData.h"
#include "host/dxf/DxfObject.h"
#include "host/dxf/DxfTextCodec.h"

// Appends the object's extended data to out; values before any application are ignored.
void dxfReadXData(const DxfObject& object, const DxfTextCodec& codec, AcDbXDataList& out);
