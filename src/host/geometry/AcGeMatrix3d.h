#pragma once
// A 4x4 affine transformation acting on points (with translation) and vectors (without).

#include "host/geometry/AcGePoint3d.h"

class AcGeLine3d;

class AcGeMatrix3d {
public:
    AcGeMatrix3d();

    static const AcGeMatrix3d kIdentity;

    static AcGeMatrix3d translation(const AcGeVector3d& v);
    static AcGeMatrix3d scaling(double factor, const AcGePoint3d& center = AcGePoint3d::kOrigin);
    static AcGeMatrix3d rotation(double angle, const AcGeVector3d& axis,
                                 const AcGePoint3d& center = AcGePoint3d::kOrigin);
    // Reflection in the drawing plane about the given line: the mirror plane holds the line and
    // the Z axis, which is what a draughtsman's "mirror about a line" means on a plan.
    static AcGeMatrix3d mirroring(const AcGeLine3d& line);
    // Reflection through the plane with this point and normal.
    static AcGeMatrix3d mirroring(const AcGePoint3d& pointOnPlane, const AcGeVector3d& normal);

    AcGeMatrix3d& setToIdentity();
    AcGeMatrix3d& setToTranslation(const AcGeVector3d& v) { return *this = translation(v); }
    AcGeMatrix3d& preMultBy(const AcGeMatrix3d& left) { return *this = left * *this; }
    AcGeMatrix3d& postMultBy(const AcGeMatrix3d& right) { return *this = *this * right; }

    AcGeMatrix3d inverse() const;
    double det() const;
    AcGeVector3d translation() const { return {entry[0][3], entry[1][3], entry[2][3]}; }
    // Length of the transformed X axis: the uniform scale factor of a similarity transform.
    double scale() const;
    // True when the transformation mirrors (its linear part has a negative determinant).
    bool isMirroring() const { return det() < 0.0; }
    bool isEqualTo(const AcGeMatrix3d& m, const AcGeTol& tol = AcGeContext::gTol) const;
    bool isUniScaledOrtho(const AcGeTol& tol = AcGeContext::gTol) const;

    AcGeMatrix3d operator*(const AcGeMatrix3d& m) const;
    AcGePoint3d operator*(const AcGePoint3d& p) const;
    AcGeVector3d operator*(const AcGeVector3d& v) const;
    bool operator==(const AcGeMatrix3d& m) const { return isEqualTo(m); }

    double entry[4][4];
};
