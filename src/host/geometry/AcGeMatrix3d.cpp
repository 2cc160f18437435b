#include "host/geometry/AcGeMatrix3d.h"

#include <cmath>

#include "host/geometry/AcGeLine3d.h"

const AcGeMatrix3d AcGeMatrix3d::kIdentity;

AcGeMatrix3d::AcGeMatrix3d() { setToIdentity(); }

AcGeMatrix3d& AcGeMatrix3d::setToIdentity() {
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c) entry[r][c] = (r == c) ? 1.0 : 0.0;
    return *this;
}

AcGeMatrix3d AcGeMatrix3d::translation(const AcGeVector3d& v) {
    AcGeMatrix3d m;
    m.entry[0][3] = v.x;
    m.entry[1][3] = v.y;
    m.entry[2][3] = v.z;
    return m;
}

AcGeMatrix3d AcGeMatrix3d::scaling(double factor, const AcGePoint3d& center) {
    AcGeMatrix3d m;
    for (int i = 0; i < 3; ++i) m.entry[i][i] = factor;
    m.entry[0][3] = center.x * (1.0 - factor);
    m.entry[1][3] = center.y * (1.0 - factor);
    m.entry[2][3] = center.z * (1.0 - factor);
    return m;
}

AcGeMatrix3d AcGeMatrix3d::rotation(double angle, const AcGeVector3d& axis, const AcGePoint3d& center) {
    const AcGeVector3d u = axis.normal();
    const double c = std::cos(angle), s = std::sin(angle), t = 1.0 - c;
    AcGeMatrix3d r;
    r.entry[0][0] = t * u.x * u.x + c;
    r.entry[0][1] = t * u.x * u.y - s * u.z;
    r.entry[0][2] = t * u.x * u.z + s * u.y;
    r.entry[1][0] = t * u.x * u.y + s * u.z;
    r.entry[1][1] = t * u.y * u.y + c;
    r.entry[1][2] = t * u.y * u.z - s * u.x;
    r.entry[2][0] = t * u.x * u.z - s * u.y;
    r.entry[2][1] = t * u.y * u.z + s * u.x;
    r.entry[2][2] = t * u.z * u.z + c;
    return translation(center.asVector()) * r * translation(-center.asVector());
}

AcGeMatrix3d AcGeMatrix3d::mirroring(const AcGePoint3d& pointOnPlane, const AcGeVector3d& normal) {
    const AcGeVector3d n = normal.normal();
    AcGeMatrix3d m;
    const double d[3] = {n.x, n.y, n.z};
    for (int r = 0; r < 3; ++r)
        for (int c = 0; c < 3; ++c) m.entry[r][c] = (r == c ? 1.0 : 0.0) - 2.0 * d[r] * d[c];
    return translation(pointOnPlane.asVector()) * m * translation(-pointOnPlane.asVector());
}

AcGeMatrix3d AcGeMatrix3d::mirroring(const AcGeLine3d& line) {
    AcGeVector3d normal = line.direction().crossProduct(AcGeVector3d::kZAxis);
    if (normal.isZeroLength()) normal = AcGeVector3d::kXAxis;  // a vertical line: mirror in X
    return mirroring(line.pointOnLine(), normal);
}

AcGeMatrix3d AcGeMatrix3d::operator*(const AcGeMatrix3d& m) const {
    AcGeMatrix3d out;
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c) {
            double sum = 0.0;
            for (int k = 0; k < 4; ++k) sum += entry[r][k] * m.entry[k][c];
            out.entry[r][c] = sum;
        }
    return out;
}

AcGePoint3d AcGeMatrix3d::operator*(const AcGePoint3d& p) const {
    return {entry[0][0] * p.x + entry[0][1] * p.y + entry[0][2] * p.z + entry[0][3],
            entry[1][0] * p.x + entry[1][1] * p.y + entry[1][2] * p.z + entry[1][3],
            entry[2][0] * p.x + entry[2][1] * p.y + entry[2][2] * p.z + entry[2][3]};
}

AcGeVector3d AcGeMatrix3d::operator*(const AcGeVector3d& v) const {
    return {entry[0][0] * v.x + entry[0][1] * v.y + entry[0][2] * v.z,
            entry[1][0] * v.x + entry[1][1] * v.y + entry[1][2] * v.z,
            entry[2][0] * v.x + entry[2][1] * v.y + entry[2][2] * v.z};
}

double AcGeMatrix3d::det() const {
    const auto& e = entry;
    return e[0][0] * (e[1][1] * e[2][2] - e[1][2] * e[2][1]) - e[0][1] * (e[1][0] * e[2][2] - e[1][2] * e[2][0]) +
           e[0][2] * (e[1][0] * e[2][1] - e[1][1] * e[2][0]);
}

AcGeMatrix3d AcGeMatrix3d::inverse() const {
    // Affine inverse: invert the 3x3 linear part, then the translation.
    const double d = det();
    AcGeMatrix3d inv;
    if (d == 0.0) return inv;
    const auto& e = entry;
    inv.entry[0][0] = (e[1][1] * e[2][2] - e[1][2] * e[2][1]) / d;
    inv.entry[0][1] = (e[0][2] * e[2][1] - e[0][1] * e[2][2]) / d;
    inv.entry[0][2] = (e[0][1] * e[1][2] - e[0][2] * e[1][1]) / d;
    inv.entry[1][0] = (e[1][2] * e[2][0] - e[1][0] * e[2][2]) / d;
    inv.entry[1][1] = (e[0][0] * e[2][2] - e[0][2] * e[2][0]) / d;
    inv.entry[1][2] = (e[0][2] * e[1][0] - e[0][0] * e[1][2]) / d;
    inv.entry[2][0] = (e[1][0] * e[2][1] - e[1][1] * e[2][0]) / d;
    inv.entry[2][1] = (e[0][1] * e[2][0] - e[0][0] * e[2][1]) / d;
    inv.entry[2][2] = (e[0][0] * e[1][1] - e[0][1] * e[1][0]) / d;
    const AcGeVector3d t = inv * translation();
    inv.entry[0][3] = -t.x;
    inv.entry[1][3] = -t.y;
    inv.entry[2][3] = -t.z;
    return inv;
}

double AcGeMatrix3d::scale() const { return (*this * AcGeVector3d::kXAxis).length(); }

bool AcGeMatrix3d::isEqualTo(const AcGeMatrix3d& m, const AcGeTol& tol) const {
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            if (std::fabs(entry[r][c] - m.entry[r][c]) > tol.equalVector()) return false;
    return true;
}

bool AcGeMatrix3d::isUniScaledOrtho(const AcGeTol& tol) const {
    const AcGeVector3d x = *this * AcGeVector3d::kXAxis;
    const AcGeVector3d y = *this * AcGeVector3d::kYAxis;
    const AcGeVector3d z = *this * AcGeVector3d::kZAxis;
    const double s = x.length();
    return std::fabs(y.length() - s) <= tol.equalVector() && std::fabs(z.length() - s) <= tol.equalVector() &&
           std::fabs(x.dotProduct(y)) <= tol.equalVector() && std::fabs(y.dotProduct(z)) <= tol.equalVector() &&
           std::fabs(x.dotProduct(z)) <= tol.equalVector();
}
