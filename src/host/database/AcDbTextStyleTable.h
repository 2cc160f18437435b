#pragma once

#include "host/database/AcDbSymbolTable.h"

class AcDbTextStyleTableRecord : public AcDbSymbolTableRecord {
public:
    AcDbTextStyleTableRecord() = default;
    const ACHAR* isA() const override { return L"AcDbTextStyleTableRecord"; }
    AcDbObject* clone() const override { return new AcDbTextStyleTableRecord(*this); }

    // The font file ("txt", "arial.ttf").
    const std::wstring& fileName() const { return m_fileName; }
    void setFileName(const ACHAR* name) { m_fileName = name ? name : L""; }
    // A fixed height, or 0 when each text gives its own.
    double textSize() const { return m_textSize; }
    void setTextSize(double size) { m_textSize = size; }
    // Width factor.
    double xScale() const { return m_xScale; }
    void setXScale(double scale) { m_xScale = scale; }
    double obliquingAngle() const { return m_oblique; }
    void setObliquingAngle(double angle) { m_oblique = angle; }

private:
    std::wstring m_fileName = L"txt";
    double m_textSize = 0.0;
    double m_xScale = 1.0;
    double m_oblique = 0.0;
};

class AcDbTextStyleTable : public AcDbSymbolTableOf<AcDbTextStyleTableRecord> {
public:
    const ACHAR* isA() const override { return L"AcDbTextStyleTable"; }
};
