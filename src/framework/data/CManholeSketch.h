#pragma once
// Drawing of a manhole view in model space of the working database: coordinates in metres of
// the manhole, (u, v) from the view's base point, scaled to drawing units. Every entity made is
// appended to the id list; a failure to make one is remembered.

#include "host/base/AcArray.h"
#include "host/database/AcDbObjectId.h"
#include "host/geometry/AcGePoint3d.h"

#include <string>
#include <vector>

namespace XimoGis {
class CXimoCEntityPtr;
}

namespace XimoGis::Data {

class CManholeSketch {
public:
    enum enmAlign { alLeft, alCentre, alRight };

    CManholeSketch(const AcGePoint3d& basePoint, double factor, AcDbObjectIdArray& ids);

    void Line(double u1, double v1, double u2, double v2, int colour, const wchar_t* linetype = nullptr);
    void Polyline(const std::vector<AcGePoint2d>& points, bool closed, int colour, const wchar_t* linetype = nullptr);
    void Rectangle(double u1, double v1, double u2, double v2, int colour);
    void Circle(double u, double v, double radius, int colour, const wchar_t* linetype = nullptr);
    // An ellipse with axes along u and v, as a closed polyline; a flat one is drawn as a line.
    void Ellipse(double u, double v, double radiusU, double radiusV, int colour, const wchar_t* linetype = nullptr);
    // A text whose middle-left, middle or middle-right point lies at (u, v); `height` is in drawing
    // units, not scaled.
    void Text(double u, double v, const std::wstring& text, double height, int colour, const std::wstring& style,
              enmAlign align);

    // Drawing units per metre.
    double GetFactor() const { return m_factor; }
    bool Failed() const { return m_failed; }

private:
    AcGePoint3d At(double u, double v) const;
    void Keep(CXimoCEntityPtr& entity, int colour, const wchar_t* linetype);

    AcGePoint3d m_base;
    double m_factor;
    AcDbObjectIdArray& m_ids;
    bool m_failed = false;
};

}  // namespace XimoGis::Data
