#pragma once

#include "host/geometry/AcGeVector3d.h"

class AcGeMatrix3d;

class AcGePoint3d {
public:
    AcGePoint3d() = default;
    AcGePoint3d(double xx, double yy, double zz) : x(xx), y(yy), z(zz) {}

    static const AcGePoint3d kOrigin;

    double distanceTo(const AcGePoint3d& p) const { return (*this - p).length(); }
    AcGeVector3d asVector() const { return {x, y, z}; }
    AcGePoint3d& transformBy(const AcGeMatrix3d& m);
    AcGePoint3d& set(double xx, double yy, double zz) { x = xx; y = yy; z = zz; return *this; }
    bool isEqualTo(const AcGePoint3d& p, const AcGeTol& tol = AcGeContext::gTol) const {
        return distanceTo(p) <= tol.equalPoint();
    }

    AcGePoint3d operator+(const AcGeVector3d& v) const { return {x + v.x, y + v.y, z + v.z}; }
    AcGePoint3d operator-(const AcGeVector3d& v) const { return {x - v.x, y - v.y, z - v.z}; }
    AcGeVector3d operator-(const AcGePoint3d& p) const { return {x - p.x, y - p.y, z - p.z}; }
    AcGePoint3d& operator+=(const AcGeVector3d& v) { x += v.x; y += v.y; z += v.z; return *this; }
    AcGePoint3d& operator-=(const AcGeVector3d& v) { x -= v.x; y -= v.y; z -= v.z; return *this; }
    AcGePoint3d operator*(double s) const { return {x * s, y * s, z * s}; }
    bool operator==(const AcGePoint3d& p) const { return isEqualTo(p); }
    bool operator!=(const AcGePoint3d& p) const { return !isEqualTo(p); }

    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

// A point on a plane: lightweight polyline vertices.
class AcGePoint2d {
public:
    AcGePoint2d() = default;
    AcGePoint2d(double xx, double yy) : x(xx), y(yy) {}
    double distanceTo(const AcGePoint2d& p) const;
    bool isEqualTo(const AcGePoint2d& p, const AcGeTol& tol = AcGeContext::gTol) const {
        return distanceTo(p) <= tol.equalPoint();
    }
    bool operator==(const AcGePoint2d& p) const { return isEqualTo(p); }
    bool operator!=(const AcGePoint2d& p) const { return !isEqualTo(p); }

    double x = 0.0;
    double y = 0.0;
};

// Scale factors of a block reference.
class AcGeScale3d {
public:
    AcGeScale3d() = default;
    explicit AcGeScale3d(double s) : sx(s), sy(s), sz(s) {}
    AcGeScale3d(double x, double y, double z) : sx(x), sy(y), sz(z) {}
    bool operator==(const AcGeScale3d& o) const;
    bool operator!=(const AcGeScale3d& o) const { return !(*this == o); }

    double sx = 1.0;
    double sy = 1.0;
    double sz = 1.0;
};
