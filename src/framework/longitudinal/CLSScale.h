#pragma once
// Drawing scale: one factor along x, one along y and the code of the unit the drawing is made in.
//
// Text form: "<x>;<y>;<unit>", the factors written so that they read back exactly, e.g. "0.1;0.1;0"
// (1:10 in both directions, unit 0) or "0.01;0.002;2".

#include <string>

namespace XimoGis::Longitudinal {

class CLSScale {
public:
    CLSScale() = default;  // 1:1 in both directions, unit 0
    CLSScale(double x, double y, int targetUnit);

    double x() const { return m_x; }
    double y() const { return m_y; }
    int GetTargetUnit() const { return m_targetUnit; }
    void SetScaleX(double x) { m_x = x; }
    void SetScaleY(double y) { m_y = y; }
    void SetTargetUnit(int unit) { m_targetUnit = unit; }

    std::wstring Serialize() const;
    // Reads the text form; blanks around the fields are allowed. Anything else (missing or extra
    // fields, factors that are not finite numbers, a unit that is not an integer, a null pointer)
    // returns false and leaves the scale unchanged. So a scale given an infinite or NaN factor
    // cannot be read back: such a scale draws nothing sensible.
    bool Deserialize(const wchar_t* text);

    bool operator==(const CLSScale&) const = default;

private:
    double m_x = 1.0;
    double m_y = 1.0;
    int m_targetUnit = 0;
};

}  // namespace XimoGis::Longitudinal
