#pragma once
// Maps drawing coordinates (Y up) to picture coordinates (Y down): a window of the drawing fitted
// into the picture with a margin, scaled the same in X and Y.

#include "host/geometry/AcGeMatrix3d.h"
#include "host/svg/AcSvgOptions.h"

class AcSvgView {
public:
    // window must be valid and not empty in X and Y.
    AcSvgView(const AcDbExtents& window, const AcSvgOptions& options);

    double width() const { return m_width; }
    double height() const { return m_height; }
    // Picture units per drawing unit.
    double scale() const { return m_scale; }
    // Drawing to picture; it mirrors (Y turns down), which the drawing code takes into account.
    const AcGeMatrix3d& toPicture() const { return m_toPicture; }
    // The window's rectangle on the picture: x, y (top left), width, height.
    double windowLeft() const { return m_margin; }
    double windowTop() const { return m_margin; }
    double windowWidth() const { return m_width - 2.0 * m_margin; }
    double windowHeight() const { return m_height - 2.0 * m_margin; }

private:
    double m_width = 0.0;
    double m_height = 0.0;
    double m_scale = 1.0;
    double m_margin = 0.0;
    AcGeMatrix3d m_toPicture;
};
