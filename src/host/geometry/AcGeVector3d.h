#pragma once

#include "host/geometry/AcGeTol.h"

class AcGeMatrix3d;

class AcGeVector3d {
public:
    AcGeVector3d() = default;
    AcGeVector3d(double xx, double yy, double zz) : x(xx), y(yy), z(zz) {}

    static const AcGeVector3d kIdentity;
    static const AcGeVector3d kXAxis;
    static const AcGeVector3d kYAxis;
    static const AcGeVector3d kZAxis;

    double length() const;
    double lengthSqrd() const { return x * x + y * y + z * z; }
    AcGeVector3d normal(const AcGeTol& tol = AcGeContext::gTol) const;
    AcGeVector3d& normalize(const AcGeTol& tol = AcGeContext::gTol);
    double dotProduct(const AcGeVector3d& v) const { return x * v.x + y * v.y + z * v.z; }
    AcGeVector3d crossProduct(const AcGeVector3d& v) const;
    // Angle in [0, pi] between the two vectors.
    double angleTo(const AcGeVector3d& v) const;
    // Signed angle from this vector to v, counter-clockwise seen from the tip of refVector.
    double angleTo(const AcGeVector3d& v, const AcGeVector3d& refVector) const;
    AcGeVector3d perpVector() const;
    AcGeVector3d& rotateBy(double angle, const AcGeVector3d& axis);
    AcGeVector3d& transformBy(const AcGeMatrix3d& m);
    bool isZeroLength(const AcGeTol& tol = AcGeContext::gTol) const;
    bool isParallelTo(const AcGeVector3d& v, const AcGeTol& tol = AcGeContext::gTol) const;
    bool isPerpendicularTo(const AcGeVector3d& v, const AcGeTol& tol = AcGeContext::gTol) const;
    bool isEqualTo(const AcGeVector3d& v, const AcGeTol& tol = AcGeContext::gTol) const;

    AcGeVector3d operator-() const { return {-x, -y, -z}; }
    AcGeVector3d operator+(const AcGeVector3d& v) const { return {x + v.x, y + v.y, z + v.z}; }
    AcGeVector3d operator-(const AcGeVector3d& v) const { return {x - v.x, y - v.y, z - v.z}; }
    AcGeVector3d operator*(double s) const { return {x * s, y * s, z * s}; }
    AcGeVector3d operator/(double s) const { return {x / s, y / s, z / s}; }
    AcGeVector3d& operator+=(const AcGeVector3d& v) { x += v.x; y += v.y; z += v.z; return *this; }
    AcGeVector3d& operator-=(const AcGeVector3d& v) { x -= v.x; y -= v.y; z -= v.z; return *this; }
    AcGeVector3d& operator*=(double s) { x *= s; y *= s; z *= s; return *this; }
    bool operator==(const AcGeVector3d& v) const { return isEqualTo(v); }
    bool operator!=(const AcGeVector3d& v) const { return !isEqualTo(v); }

    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

inline AcGeVector3d operator*(double s, const AcGeVector3d& v) { return v * s; }
