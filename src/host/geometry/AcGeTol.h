#pragma once
// Tolerances for geometric comparisons and the host's global tolerance.

class AcGeTol {
public:
    AcGeTol() = default;
    AcGeTol(double point, double vector) : m_point(point), m_vector(vector) {}
    double equalPoint() const { return m_point; }
    double equalVector() const { return m_vector; }
    void setEqualPoint(double value) { m_point = value; }
    void setEqualVector(double value) { m_vector = value; }

private:
    double m_point = 1e-10;
    double m_vector = 1e-12;
};

struct AcGeContext {
    // The global tolerance used where a call takes none, as in the host.
    static AcGeTol gTol;
};
