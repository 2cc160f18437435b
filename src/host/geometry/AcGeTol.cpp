#include "host/geometry/AcGeTol.h"

AcGeTol AcGeContext::gTol;
