#pragma once
// Compares two databases record by record and entity by entity (matched by handle), as a saved
// and reloaded drawing must match the original. Erased objects are not compared (files do not
// keep them).

#include <string>
#include <vector>

#include "host/database/AcDbDatabase.h"

// One line per difference, naming the object and the property; empty when they match.
std::vector<std::string> compareDatabases(const AcDbDatabase& expected, const AcDbDatabase& actual);
