#pragma once
// Draws entities on the picture: curves with their colour and linetype, texts, points, and block
// references with the block's entities (nested blocks too) and the reference's attributes.

#include "host/entities/AcDbBlockReference.h"
#include "host/svg/AcSvgDashes.h"
#include "host/svg/AcSvgOptions.h"
#include "host/svg/AcSvgProperties.h"
#include "host/svg/AcSvgTextDrawer.h"
#include "host/svg/AcSvgView.h"
#include "host/svg/AcSvgWriter.h"

class AcDbLine;
class AcDbPolyline;
class AcDbPoint;
class AcDbCircle;
class AcDbArc;
class AcDbAttributeDefinition;

class AcSvgEntityDrawer {
public:
    AcSvgEntityDrawer(AcSvgWriter& out, const AcSvgView& view, const AcSvgOptions& options,
                      const AcSvgProperties& properties);

    // toWorld places the entity in the drawing: identity in model space, the product of the block
    // transforms inside blocks. depth counts the blocks around the entity.
    void draw(const AcDbEntity& entity, const AcGeMatrix3d& toWorld, const AcSvgInherited& inherited, int depth = 0);

private:
    // How an entity's curves are stroked on the picture.
    struct Pen {
        std::string color;
        AcSvgDashes dashes;
    };
    Pen penFor(const AcDbEntity& entity, const AcGeMatrix3d& toPicture, const AcSvgInherited& inherited) const;
    // Opens a curve element with its class and stroke.
    AcSvgWriter& startCurve(const char* element, const char* kind, const Pen& pen);

    void drawLine(const AcDbLine& line, const AcGeMatrix3d& toPicture, const Pen& pen);
    void drawPolyline(const AcDbPolyline& polyline, const AcGeMatrix3d& toPicture, const Pen& pen);
    void drawPoint(const AcDbPoint& point, const AcGeMatrix3d& toPicture, const Pen& pen);
    void drawCircle(const AcDbCircle& circle, const AcGeMatrix3d& toPicture, const Pen& pen);
    void drawArc(const AcDbArc& arc, const AcGeMatrix3d& toPicture, const Pen& pen);
    void drawReference(const AcDbBlockReference& reference, const AcGeMatrix3d& toWorld,
                       const AcSvgInherited& inherited, int depth);

    AcSvgWriter& m_out;
    const AcSvgView& m_view;
    const AcSvgOptions& m_options;
    const AcSvgProperties& m_properties;
    AcSvgTextDrawer m_text;
};
