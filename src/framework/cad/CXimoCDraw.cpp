#include "framework/cad/CXimoCDraw.h"

#include "host/entities/AcDbArc.h"
#include "host/entities/AcDbCircle.h"
#include "host/entities/AcDbLine.h"
#include "host/entities/AcDbMText.h"
#include "host/entities/AcDbPoint.h"
#include "host/entities/AcDbPolyline.h"
#include "host/entities/AcDbText.h"

namespace XimoGis {

CXimoCEntityPtr CXimoCDraw::add(AcDbEntity* entity, AcDbObjectId block) {
    CXimoCEntityPtr ptr(entity);
    if (ptr.addToDrawing(block) != Acad::eOk) ptr.close();  // deletes the entity that found no place
    return ptr;
}

CXimoCEntityPtr CXimoCDraw::line(const AcGePoint3d& start, const AcGePoint3d& end, AcDbObjectId block) {
    return add(new AcDbLine(start, end), block);
}

CXimoCEntityPtr CXimoCDraw::polylineLW(const AcArray<AcGePoint3d>& points, bool closed, double width,
                                       AcDbObjectId block) {
    auto* pl = new AcDbPolyline;
    for (int i = 0; i < points.length(); ++i)
        pl->addVertexAt(static_cast<unsigned>(i), AcGePoint2d(points[i].x, points[i].y), 0.0, width, width);
    if (!points.isEmpty()) pl->setElevation(points[0].z);
    pl->setClosed(closed);
    return add(pl, block);
}

CXimoCEntityPtr CXimoCDraw::point(const AcGePoint3d& position, AcDbObjectId block) {
    return add(new AcDbPoint(position), block);
}

CXimoCEntityPtr CXimoCDraw::circle(const AcGePoint3d& center, double radius, const AcGeVector3d& normal,
                                   AcDbObjectId block) {
    if (!(radius > 0.0)) return CXimoCEntityPtr();
    return add(new AcDbCircle(center, normal, radius), block);
}

CXimoCEntityPtr CXimoCDraw::arc(const AcGePoint3d& center, double radius, double startAngle, double endAngle,
                                AcDbObjectId block) {
    if (!(radius > 0.0)) return CXimoCEntityPtr();
    return add(new AcDbArc(center, radius, startAngle, endAngle), block);
}

CXimoCEntityPtr CXimoCDraw::text(const AcGePoint3d& position, const std::wstring& text, double height,
                                 double rotation, const std::wstring& style, AcDbObjectId block) {
    auto* t = new AcDbText(position, text.c_str(), AcDbObjectId(), height, rotation);
    CXimoCEntityPtr ptr = add(t, block);
    if (ptr && ptr->database() && !ptr->database()->textStyleId(style).isNull())
        static_cast<AcDbText*>(ptr.get())->setTextStyleName(style.c_str());
    return ptr;
}

CXimoCEntityPtr CXimoCDraw::mtext(const AcGePoint3d& location, const std::wstring& contents, double height,
                                  double width, AcDbObjectId block) {
    auto* m = new AcDbMText;
    m->setLocation(location);
    m->setContents(contents.c_str());
    m->setTextHeight(height);
    m->setWidth(width);
    return add(m, block);
}

}  // namespace XimoGis
