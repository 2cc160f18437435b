#pragma once
// Multi-line text: paragraphs separated by "\P" (or a line feed) within a reference width.

#include <string>
#include <vector>

#include "host/entities/AcDbEntity.h"

class AcDbMText : public AcDbEntity {
public:
    // Where the location sits on the text's box (1 top left ... 9 bottom right).
    enum AttachmentPoint {
        kTopLeft = 1, kTopCenter, kTopRight, kMiddleLeft, kMiddleCenter, kMiddleRight, kBottomLeft, kBottomCenter,
        kBottomRight
    };

    AcDbMText() = default;
    const ACHAR* isA() const override { return L"AcDbMText"; }
    AcDbObject* clone() const override { return new AcDbMText(*this); }

    AcGePoint3d location() const { return m_location; }
    Acad::ErrorStatus setLocation(const AcGePoint3d& p) { m_location = p; return Acad::eOk; }
    const std::wstring& contents() const { return m_contents; }
    Acad::ErrorStatus setContents(const ACHAR* text) { m_contents = text ? text : L""; return Acad::eOk; }
    double textHeight() const { return m_height; }
    Acad::ErrorStatus setTextHeight(double h);
    // Reference width; 0 lets lines run as long as they are.
    double width() const { return m_width; }
    Acad::ErrorStatus setWidth(double w) { m_width = w < 0.0 ? 0.0 : w; return Acad::eOk; }
    double rotation() const { return m_rotation; }
    Acad::ErrorStatus setRotation(double r) { m_rotation = r; return Acad::eOk; }
    AttachmentPoint attachment() const { return m_attachment; }
    Acad::ErrorStatus setAttachment(AttachmentPoint a) { m_attachment = a; return Acad::eOk; }
    const std::wstring& textStyleName() const { return m_style; }
    Acad::ErrorStatus setTextStyleName(const ACHAR* name);
    // Distance between base lines, as a factor of the height.
    static constexpr double kLineSpacing = 5.0 / 3.0;

    // The contents split into lines, formatting codes other than "\P" left as they are.
    std::vector<std::wstring> lines() const;
    double actualWidth() const;
    double actualHeight() const;

    Acad::ErrorStatus getGeomExtents(AcDbExtents& extents) const override;
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& m) override;

private:
    AcGePoint3d m_location;
    std::wstring m_contents;
    std::wstring m_style = L"Standard";
    double m_height = 2.5;
    double m_width = 0.0;
    double m_rotation = 0.0;
    AttachmentPoint m_attachment = kTopLeft;
};
