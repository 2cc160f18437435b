#include "host/svg/AcSvgView.h"

#include <algorithm>

AcSvgView::AcSvgView(const AcDbExtents& window, const AcSvgOptions& options) {
    const double w = window.maxPoint().x - window.minPoint().x;
    const double h = window.maxPoint().y - window.minPoint().y;
    m_margin = std::max(0.0, options.margin);
    const double roomX = std::max(1.0, options.maxWidth - 2.0 * m_margin);
    const double roomY = std::max(1.0, options.maxHeight - 2.0 * m_margin);
    m_scale = std::min(roomX / w, roomY / h);
    m_width = w * m_scale + 2.0 * m_margin;
    m_height = h * m_scale + 2.0 * m_margin;
    // x' = margin + s (x - minX), y' = margin + s (maxY - y).
    m_toPicture.entry[0][0] = m_scale;
    m_toPicture.entry[0][3] = m_margin - m_scale * window.minPoint().x;
    m_toPicture.entry[1][1] = -m_scale;
    m_toPicture.entry[1][3] = m_margin + m_scale * window.maxPoint().y;
}
