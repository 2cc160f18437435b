#include "host/geometry/AcGePoint3d.h"

#include <cmath>

#include "host/geometry/AcGeMatrix3d.h"

const AcGePoint3d AcGePoint3d::kOrigin(0.0, 0.0, 0.0);

AcGePoint3d& AcGePoint3d::transformBy(const AcGeMatrix3d& m) {
    *this = m * *this;
    return *this;
}

double AcGePoint2d::distanceTo(const AcGePoint2d& p) const { return std::hypot(x - p.x, y - p.y); }

bool AcGeScale3d::operator==(const AcGeScale3d& o) const {
    const double tol = AcGeContext::gTol.equalVector();
    return std::fabs(sx - o.sx) <= tol && std::fabs(sy - o.sy) <= tol && std::fabs(sz - o.sz) <= tol;
}
