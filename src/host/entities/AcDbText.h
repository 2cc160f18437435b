#pragma once
// A single line of text.

#include <string>

#include "host/entities/AcDbEntity.h"

class AcDbText : public AcDbEntity {
public:
    AcDbText() = default;
    AcDbText(const AcGePoint3d& position, const ACHAR* text, AcDbObjectId style = AcDbObjectId(), double height = 0.0,
             double rotation = 0.0);
    const ACHAR* isA() const override { return L"AcDbText"; }
    AcDbObject* clone() const override { return new AcDbText(*this); }

    AcGePoint3d position() const { return m_position; }
    Acad::ErrorStatus setPosition(const AcGePoint3d& p) { m_position = p; return Acad::eOk; }
    // Used instead of the position for every alignment but left/base.
    AcGePoint3d alignmentPoint() const { return m_alignment; }
    Acad::ErrorStatus setAlignmentPoint(const AcGePoint3d& p) { m_alignment = p; return Acad::eOk; }
    bool isDefaultAlignment() const { return m_horizontal == AcDb::kTextLeft && m_vertical == AcDb::kTextBase; }

    const std::wstring& textString() const { return m_text; }
    Acad::ErrorStatus setTextString(const ACHAR* text) { m_text = text ? text : L""; return Acad::eOk; }
    double height() const { return m_height; }
    Acad::ErrorStatus setHeight(double h);
    double rotation() const { return m_rotation; }
    Acad::ErrorStatus setRotation(double r) { m_rotation = r; return Acad::eOk; }
    double widthFactor() const { return m_widthFactor; }
    Acad::ErrorStatus setWidthFactor(double w);
    double oblique() const { return m_oblique; }
    Acad::ErrorStatus setOblique(double a) { m_oblique = a; return Acad::eOk; }
    AcDb::TextHorzMode horizontalMode() const { return m_horizontal; }
    Acad::ErrorStatus setHorizontalMode(AcDb::TextHorzMode mode) { m_horizontal = mode; return Acad::eOk; }
    AcDb::TextVertMode verticalMode() const { return m_vertical; }
    Acad::ErrorStatus setVerticalMode(AcDb::TextVertMode mode) { m_vertical = mode; return Acad::eOk; }
    bool isMirroredInX() const { return m_mirroredX; }
    Acad::ErrorStatus mirrorInX(bool mirrored) { m_mirroredX = mirrored; return Acad::eOk; }
    bool isMirroredInY() const { return m_mirroredY; }
    Acad::ErrorStatus mirrorInY(bool mirrored) { m_mirroredY = mirrored; return Acad::eOk; }

    // The text style by name ("Standard" by default) and, in a database, by id.
    const std::wstring& textStyleName() const { return m_style; }
    Acad::ErrorStatus setTextStyleName(const ACHAR* name);
    AcDbObjectId textStyle() const;
    Acad::ErrorStatus setTextStyle(AcDbObjectId style);

    // The point the text is anchored at: the position for left/base, else the alignment point.
    AcGePoint3d anchorPoint() const { return isDefaultAlignment() ? m_position : m_alignment; }
    // Width of the text as measured (see TextMetrics.h).
    double measuredWidth() const;

    Acad::ErrorStatus getGeomExtents(AcDbExtents& extents) const override;
    // A reflection keeps the glyphs' geometry: the text is flagged as mirrored in X.
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& m) override;

    // Copies the text and its properties (not identity or extended data).
    void copyTextFrom(const AcDbText& other);

private:
    AcGePoint3d m_position;
    AcGePoint3d m_alignment;
    std::wstring m_text;
    std::wstring m_style = L"Standard";
    double m_height = 2.5;
    double m_rotation = 0.0;
    double m_widthFactor = 1.0;
    double m_oblique = 0.0;
    AcDb::TextHorzMode m_horizontal = AcDb::kTextLeft;
    AcDb::TextVertMode m_vertical = AcDb::kTextBase;
    bool m_mirroredX = false;
    bool m_mirroredY = false;
};
