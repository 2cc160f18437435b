#pragma once
// Drawing through the CAD wrapper: each call makes an entity, adds it to a block (model space of
// the working database unless a block is given) and hands it back open for write.

#include <string>

#include "framework/cad/CXimoCEntityPtr.h"
#include "host/base/AcArray.h"

namespace XimoGis {

class CXimoCDraw {
public:
    static CXimoCEntityPtr line(const AcGePoint3d& start, const AcGePoint3d& end, AcDbObjectId block = {});
    // A lightweight polyline through the points' x and y, at the first point's elevation.
    static CXimoCEntityPtr polylineLW(const AcArray<AcGePoint3d>& points, bool closed, double width = 0.0,
                                      AcDbObjectId block = {});
    static CXimoCEntityPtr point(const AcGePoint3d& position, AcDbObjectId block = {});
    static CXimoCEntityPtr circle(const AcGePoint3d& center, double radius,
                                  const AcGeVector3d& normal = AcGeVector3d::kZAxis, AcDbObjectId block = {});
    static CXimoCEntityPtr arc(const AcGePoint3d& center, double radius, double startAngle, double endAngle,
                               AcDbObjectId block = {});
    // Text style by name; an unknown style falls back to the drawing's default.
    static CXimoCEntityPtr text(const AcGePoint3d& position, const std::wstring& text, double height,
                                double rotation = 0.0, const std::wstring& style = L"Standard", AcDbObjectId block = {});
    static CXimoCEntityPtr mtext(const AcGePoint3d& location, const std::wstring& contents, double height,
                                 double width = 0.0, AcDbObjectId block = {});

private:
    static CXimoCEntityPtr add(AcDbEntity* entity, AcDbObjectId block);
};

}  // namespace XimoGis
