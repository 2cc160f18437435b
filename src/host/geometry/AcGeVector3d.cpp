#include "host/geometry/AcGeVector3d.h"

#include <algorithm>
#include <cmath>

#include "host/geometry/AcGeMatrix3d.h"

const AcGeVector3d AcGeVector3d::kIdentity(0.0, 0.0, 0.0);
const AcGeVector3d AcGeVector3d::kXAxis(1.0, 0.0, 0.0);
const AcGeVector3d AcGeVector3d::kYAxis(0.0, 1.0, 0.0);
const AcGeVector3d AcGeVector3d::kZAxis(0.0, 0.0, 1.0);

double AcGeVector3d::length() const { return std::sqrt(lengthSqrd()); }

AcGeVector3d AcGeVector3d::normal(const AcGeTol& tol) const {
    AcGeVector3d v(*this);
    return v.normalize(tol);
}

AcGeVector3d& AcGeVector3d::normalize(const AcGeTol& tol) {
    const double len = length();
    if (len > tol.equalVector()) {
        x /= len;
        y /= len;
        z /= len;
    }
    return *this;
}

AcGeVector3d AcGeVector3d::crossProduct(const AcGeVector3d& v) const {
    return {y * v.z - z * v.y, z * v.x - x * v.z, x * v.y - y * v.x};
}

double AcGeVector3d::angleTo(const AcGeVector3d& v) const {
    const double denominator = length() * v.length();
    if (denominator == 0.0) return 0.0;
    return std::acos(std::clamp(dotProduct(v) / denominator, -1.0, 1.0));
}

double AcGeVector3d::angleTo(const AcGeVector3d& v, const AcGeVector3d& refVector) const {
    const double angle = angleTo(v);
    if (crossProduct(v).dotProduct(refVector) < 0.0) return 2.0 * M_PI - angle;
    return angle;
}

AcGeVector3d AcGeVector3d::perpVector() const {
    // The arbitrary-axis choice of the host: cross with Z unless nearly parallel to it.
    const AcGeVector3d n = normal();
    if (std::fabs(n.x) < 1.0 / 64.0 && std::fabs(n.y) < 1.0 / 64.0) return kYAxis.crossProduct(n).normal();
    return kZAxis.crossProduct(n).normal();
}

AcGeVector3d& AcGeVector3d::rotateBy(double angle, const AcGeVector3d& axis) {
    return transformBy(AcGeMatrix3d::rotation(angle, axis));
}

AcGeVector3d& AcGeVector3d::transformBy(const AcGeMatrix3d& m) {
    *this = m * *this;
    return *this;
}

bool AcGeVector3d::isZeroLength(const AcGeTol& tol) const { return length() <= tol.equalVector(); }

bool AcGeVector3d::isParallelTo(const AcGeVector3d& v, const AcGeTol& tol) const {
    if (isZeroLength(tol) || v.isZeroLength(tol)) return false;
    return normal().crossProduct(v.normal()).length() <= tol.equalVector();
}

bool AcGeVector3d::isPerpendicularTo(const AcGeVector3d& v, const AcGeTol& tol) const {
    if (isZeroLength(tol) || v.isZeroLength(tol)) return false;
    return std::fabs(normal().dotProduct(v.normal())) <= tol.equalVector();
}

bool AcGeVector3d::isEqualTo(const AcGeVector3d& v, const AcGeTol& tol) const {
    return (*this - v).length() <= tol.equalVector();
}
