#pragma once
// Extended data of an object, written after the object's own groups: each application's 1001
// group, then its values in order.

#include "host/database/AcDbXData.h"
#include "host/dxf/DxfWriter.h"

void dxfWriteXData(const DxfWriter& out, const AcDbXDataList& xdata);
