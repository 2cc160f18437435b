#include "host/database/AcDbXData.h"

#include <cmath>

bool AcDbXDataValue::operator==(const AcDbXDataValue& o) const {
    if (code != o.code || value.index() != o.value.index()) return false;
    if (const auto* d = std::get_if<double>(&value)) {
        // Reals go through text in files: compare with a relative tolerance.
        const double e = std::get<double>(o.value);
        return std::fabs(*d - e) <= 1e-12 * std::max(1.0, std::fabs(*d));
    }
    if (const auto* p = std::get_if<AcGePoint3d>(&value)) return p->isEqualTo(std::get<AcGePoint3d>(o.value), AcGeTol(1e-9, 1e-9));
    return value == o.value;
}

bool acdbIsXDataValueCode(int code) {
    return (code >= 1000 && code <= 1005 && code != 1001) || (code >= 1010 && code <= 1013) ||
           (code >= 1040 && code <= 1042) || code == 1070 || code == 1071;
}
