#pragma once
// dxflib's ASCII writer with the value formats a drawing needs: reals that read back exactly,
// text encoded for the file, points, handles.

#include <string>
#include <string_view>

#include <dl_writer_ascii.h>

#include "host/base/AcadTypes.h"
#include "host/geometry/AcGePoint3d.h"

class DxfWriter : public DL_WriterA {
public:
    explicit DxfWriter(const std::string& path) : DL_WriterA(path.c_str(), DL_Codes::AC1015) {}

    // The shortest text that reads back as the same double. dxflib's own writes 16 fixed decimals
    // (too few for small values) and flushes the file after every real.
    void dxfReal(int gc, double value) const override;
    void text(int gc, std::wstring_view value) const;
    // x, y and z under gc, gc + 10 and gc + 20.
    void point(int gc, const AcGePoint3d& p) const;
    void point2d(int gc, double x, double y) const {
        dxfReal(gc, x);
        dxfReal(gc + 10, y);
    }
    void handle(int gc, Adesk::UInt32 value) const { dxfHex(gc, static_cast<int>(value)); }
    // Angles are radians in the database and degrees in the file.
    void angle(int gc, double radians) const;

    // Values that are not finite numbers were written as 0: the file does not hold the drawing.
    int nonFiniteValues() const { return m_nonFinite; }

private:
    mutable int m_nonFinite = 0;
    mutable std::string m_buffer;
};
