#include "host/entities/AcDbMText.h"

#include <algorithm>
#include <cmath>

#include "host/database/AcDbDatabase.h"
#include "host/entities/TextMetrics.h"

Acad::ErrorStatus AcDbMText::setTextHeight(double h) {
    if (!(h > 0.0)) return Acad::eInvalidInput;
    m_height = h;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbMText::setTextStyleName(const ACHAR* name) {
    if (!name || !*name) return Acad::eInvalidInput;
    if (AcDbDatabase* db = database(); db && db->textStyleId(name).isNull()) return Acad::eKeyNotFound;
    m_style = name;
    return Acad::eOk;
}

std::vector<std::wstring> AcDbMText::lines() const {
    std::vector<std::wstring> out(1);
    for (std::size_t i = 0; i < m_contents.size(); ++i) {
        if (m_contents[i] == L'\n') {
            out.emplace_back();
        } else if (m_contents[i] == L'\\' && i + 1 < m_contents.size() && m_contents[i + 1] == L'P') {
            out.emplace_back();
            ++i;
        } else {
            out.back() += m_contents[i];
        }
    }
    return out;
}

double AcDbMText::actualWidth() const {
    double w = 0.0;
    for (const auto& line : lines()) w = std::max(w, acdbTextWidth(line, m_height));
    return w;
}

double AcDbMText::actualHeight() const {
    const auto n = static_cast<double>(lines().size());
    return m_height * (1.0 + (n - 1.0) * kLineSpacing);
}

Acad::ErrorStatus AcDbMText::getGeomExtents(AcDbExtents& extents) const {
    const double w = m_width > 0.0 ? std::max(m_width, actualWidth()) : actualWidth();
    const double h = actualHeight();
    const int column = (m_attachment - 1) % 3;  // 0 left, 1 centre, 2 right
    const int row = (m_attachment - 1) / 3;     // 0 top, 1 middle, 2 bottom
    const double x0 = -w * column / 2.0;
    const double y1 = h * row / 2.0;  // top edge relative to the location
    const AcGeMatrix3d place = AcGeMatrix3d::translation(m_location.asVector()) *
                               AcGeMatrix3d::rotation(m_rotation, AcGeVector3d::kZAxis);
    extents = AcDbExtents();
    for (const auto& [dx, dy] : {std::pair{x0, y1}, {x0 + w, y1}, {x0, y1 - h}, {x0 + w, y1 - h}})
        extents.addPoint(place * AcGePoint3d(dx, dy, 0.0));
    return Acad::eOk;
}

Acad::ErrorStatus AcDbMText::transformBy(const AcGeMatrix3d& m) {
    // Multi-line text has no mirrored form: a reflection keeps it readable.
    const AcGeVector3d direction = m * AcGeVector3d(std::cos(m_rotation), std::sin(m_rotation), 0.0);
    m_rotation = std::atan2(direction.y, direction.x);
    const double s = m.scale();
    m_height *= s;
    m_width *= s;
    m_location.transformBy(m);
    return Acad::eOk;
}
