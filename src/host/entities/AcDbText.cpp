#include "host/entities/AcDbText.h"

#include <cmath>

#include "host/database/AcDbDatabase.h"
#include "host/entities/TextMetrics.h"

AcDbText::AcDbText(const AcGePoint3d& position, const ACHAR* text, AcDbObjectId style, double height, double rotation)
    : m_position(position), m_alignment(position), m_text(text ? text : L""), m_rotation(rotation) {
    if (height > 0.0) m_height = height;
    if (!style.isNull()) setTextStyle(style);
}

Acad::ErrorStatus AcDbText::setHeight(double h) {
    if (!(h > 0.0)) return Acad::eInvalidInput;
    m_height = h;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setWidthFactor(double w) {
    if (!(w > 0.0)) return Acad::eInvalidInput;
    m_widthFactor = w;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setTextStyleName(const ACHAR* name) {
    if (!name || !*name) return Acad::eInvalidInput;
    if (AcDbDatabase* db = database(); db && db->textStyleId(name).isNull()) return Acad::eKeyNotFound;
    m_style = name;
    return Acad::eOk;
}

AcDbObjectId AcDbText::textStyle() const {
    AcDbDatabase* db = database();
    return db ? db->textStyleId(m_style) : AcDbObjectId();
}

Acad::ErrorStatus AcDbText::setTextStyle(AcDbObjectId style) {
    const auto* record = dynamic_cast<const AcDbTextStyleTableRecord*>(AcDbDatabase::peekObject(style));
    if (!record) return Acad::eInvalidInput;
    m_style = record->name();
    return Acad::eOk;
}

void AcDbText::copyTextFrom(const AcDbText& o) {
    setPropertiesFrom(o);
    m_position = o.m_position;
    m_alignment = o.m_alignment;
    m_text = o.m_text;
    m_style = o.m_style;
    m_height = o.m_height;
    m_rotation = o.m_rotation;
    m_widthFactor = o.m_widthFactor;
    m_oblique = o.m_oblique;
    m_horizontal = o.m_horizontal;
    m_vertical = o.m_vertical;
    m_mirroredX = o.m_mirroredX;
    m_mirroredY = o.m_mirroredY;
}

double AcDbText::measuredWidth() const { return acdbTextWidth(m_text, m_height, m_widthFactor); }

Acad::ErrorStatus AcDbText::getGeomExtents(AcDbExtents& extents) const {
    const double w = measuredWidth();
    double x0 = 0.0;
    double y0 = 0.0;
    switch (m_horizontal) {
        case AcDb::kTextCenter: case AcDb::kTextMid: x0 = -w / 2.0; break;
        case AcDb::kTextRight: x0 = -w; break;
        default: break;
    }
    switch (m_vertical) {
        case AcDb::kTextVertMid: y0 = -m_height / 2.0; break;
        case AcDb::kTextTop: y0 = -m_height; break;
        case AcDb::kTextBottom: y0 = m_height * 0.2; break;  // descenders lie below the base line
        default: break;
    }
    if (m_horizontal == AcDb::kTextMid) y0 = -m_height / 2.0;
    const double sign = m_mirroredX ? -1.0 : 1.0;
    const AcGeMatrix3d place = AcGeMatrix3d::translation(anchorPoint().asVector()) *
                               AcGeMatrix3d::rotation(m_rotation, AcGeVector3d::kZAxis);
    extents = AcDbExtents();
    for (const auto& [dx, dy] : {std::pair{x0, y0}, {x0 + w, y0}, {x0, y0 + m_height}, {x0 + w, y0 + m_height}})
        extents.addPoint(place * AcGePoint3d(sign * dx, dy, 0.0));
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::transformBy(const AcGeMatrix3d& m) {
    AcGeVector3d direction = m * AcGeVector3d(std::cos(m_rotation), std::sin(m_rotation), 0.0);
    if (m.isMirroring()) {
        direction = -direction;
        m_mirroredX = !m_mirroredX;
    }
    m_rotation = std::atan2(direction.y, direction.x);
    m_height *= m.scale();
    m_position.transformBy(m);
    m_alignment.transformBy(m);
    return Acad::eOk;
}
