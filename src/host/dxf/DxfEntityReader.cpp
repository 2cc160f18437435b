#include "host/dxf/DxfEntityReader.h"

#include <algorithm>
#include <cmath>

#include "host/base/AcString.h"
#include "host/dxf/DxfOcs.h"
#include "host/dxf/DxfXDataReader.h"
#include "host/entities/AcDbArc.h"
#include "host/entities/AcDbAttribute.h"
#include "host/entities/AcDbAttributeDefinition.h"
#include "host/entities/AcDbBlockReference.h"
#include "host/entities/AcDbCircle.h"
#include "host/entities/AcDbLine.h"
#include "host/entities/AcDbMText.h"
#include "host/entities/AcDbPoint.h"
#include "host/entities/AcDbPolyline.h"

namespace {
double radians(double degrees) { return degrees * M_PI / 180.0; }

AcGeVector3d direction(const DL_Extrusion& extrusion) {
    const double* d = extrusion.getDirection();
    return {d[0], d[1], d[2]};
}

bool equalsIgnoringCase(std::string_view a, std::string_view upper) {
    if (a.size() != upper.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if ((a[i] >= 'a' && a[i] <= 'z' ? a[i] - ('a' - 'A') : a[i]) != upper[i]) return false;
    return true;
}

enum AttributeFlag { kInvisible = 1, kConstant = 2, kPreset = 8 };
}  // namespace

void DxfEntityReader::readCommon(AcDbEntity& entity, const DL_Attributes& attributes, const DxfObject& object) {
    const std::string layer = attributes.getLayer();
    // Entities come in runs on one layer: decode its name once per run.
    if (layer != m_layerBytes || m_codec.codePage() != m_layerCodePage) {
        m_layerBytes = layer;
        m_layerCodePage = m_codec.codePage();
        m_layerName = m_codec.decode(layer);
    }
    if (!m_layerName.empty()) entity.setLayer(m_layerName.c_str());
    // dxflib gives "BYLAYER" for an entity without a linetype: the database spells it "ByLayer".
    const std::string linetype = attributes.getLinetype();
    if (equalsIgnoringCase(linetype, "BYLAYER")) entity.setLinetype(L"ByLayer");
    else if (equalsIgnoringCase(linetype, "BYBLOCK")) entity.setLinetype(L"ByBlock");
    else if (!linetype.empty()) entity.setLinetype(m_codec.decode(linetype).c_str());
    entity.setColorIndex(static_cast<Adesk::UInt16>(std::clamp(std::abs(attributes.getColor()), 0, 256)));
    entity.setLinetypeScale(attributes.getLinetypeScale() > 0.0 ? attributes.getLinetypeScale() : 1.0);
    AcDbXDataList xdata;
    dxfReadXData(object, m_codec, xdata);
    for (AcDbXDataApp& app : xdata) entity.setXData(std::move(app));
}

AcDbLine* DxfEntityReader::line(const DL_LineData& d) const {
    return new AcDbLine(AcGePoint3d(d.x1, d.y1, d.z1), AcGePoint3d(d.x2, d.y2, d.z2));
}

AcDbPoint* DxfEntityReader::point(const DL_PointData& d) const { return new AcDbPoint(AcGePoint3d(d.x, d.y, d.z)); }

AcDbCircle* DxfEntityReader::circle(const DL_CircleData& d, const DL_Extrusion& extrusion) const {
    const DxfOcs ocs(direction(extrusion));
    return new AcDbCircle(ocs.toWorld(AcGePoint3d(d.cx, d.cy, d.cz)), ocs.normal(), d.radius);
}

AcDbArc* DxfEntityReader::arc(const DL_ArcData& d, const DL_Extrusion& extrusion) const {
    const AcGeVector3d normal = direction(extrusion);
    if (normal.z < 0.0 && std::fabs(normal.x) < 1e-12 && std::fabs(normal.y) < 1e-12) {
        // Seen from below (a mirrored arc): the plane's X axis points to -X, so angles turn
        // round and the arc runs the other way.
        const DxfOcs ocs(normal);
        return new AcDbArc(ocs.toWorld(AcGePoint3d(d.cx, d.cy, d.cz)), d.radius, M_PI - radians(d.angle2),
                           M_PI - radians(d.angle1));
    }
    return new AcDbArc(AcGePoint3d(d.cx, d.cy, d.cz), d.radius, radians(d.angle1), radians(d.angle2));
}

AcDbPolyline* DxfEntityReader::polyline(const DxfObject& object) const {
    // Vertex groups repeat, which dxflib's reader keeps only the bulges of: read them here.
    auto* polyline = new AcDbPolyline;
    const double constantWidth = object.real(43, 0.0);
    unsigned index = 0;
    bool inVertex = false;
    double x = 0.0, y = 0.0, bulge = 0.0, start = constantWidth, end = constantWidth;
    const auto flush = [&] {
        if (inVertex) polyline->addVertexAt(index++, AcGePoint2d(x, y), bulge, start, end);
        x = y = bulge = 0.0;
        start = end = constantWidth;
    };
    for (const DxfGroup& g : object.groups()) {
        switch (g.code) {
            case 10: flush(); inVertex = true; x = g.real; break;
            case 20: y = g.real; break;
            case 40: start = g.real; break;
            case 41: end = g.real; break;
            case 42: bulge = g.real; break;
            default: break;
        }
        if (g.code >= 1000) break;  // extended data from here on
    }
    flush();
    polyline->setClosed((object.integer(70, 0) & 1) != 0);
    polyline->setElevation(object.real(38, 0.0));
    return polyline;
}

void DxfEntityReader::readText(AcDbText& text, const DL_TextData& d, const DxfObject& object) const {
    text.setPosition(AcGePoint3d(d.ipx, d.ipy, d.ipz));
    text.setAlignmentPoint(object.has(11) ? AcGePoint3d(d.apx, d.apy, d.apz) : AcGePoint3d(d.ipx, d.ipy, d.ipz));
    text.setTextString(m_codec.decode(d.text).c_str());
    text.setHeight(d.height);  // a zero height (take the style's) keeps the default
    text.setWidthFactor(d.xScaleFactor);
    text.setRotation(d.angle);
    text.setOblique(radians(object.real(51, 0.0)));
    if (!d.style.empty()) text.setTextStyleName(m_codec.decode(d.style).c_str());
    text.mirrorInX((d.textGenerationFlags & 2) != 0);
    text.mirrorInY((d.textGenerationFlags & 4) != 0);
    text.setHorizontalMode(static_cast<AcDb::TextHorzMode>(std::clamp(d.hJustification, 0, 5)));
    text.setVerticalMode(static_cast<AcDb::TextVertMode>(std::clamp(d.vJustification, 0, 3)));
}

AcDbText* DxfEntityReader::text(const DL_TextData& d, const DxfObject& object) const {
    auto* text = new AcDbText;
    readText(*text, d, object);
    return text;
}

AcDbAttribute* DxfEntityReader::attribute(const DL_AttributeData& d, const DxfObject& object) const {
    auto* attribute = new AcDbAttribute;
    readText(*attribute, d, object);
    const std::wstring tag = m_codec.decode(d.tag);
    attribute->setTag(tag.empty() ? L"TAG" : tag.c_str());
    const auto flags = object.integer(70, 0);
    attribute->setInvisible((flags & kInvisible) != 0);
    attribute->setConstant((flags & kConstant) != 0);
    return attribute;
}

AcDbAttributeDefinition* DxfEntityReader::attributeDefinition(const DxfObject& object) const {
    // The groups are those of an attribute: read them as dxflib reads an ATTRIB.
    const DL_AttributeData d(object.real(10), object.real(20), object.real(30), object.real(11), object.real(21),
                             object.real(31), object.real(40, 2.5), object.real(41, 1.0),
                             static_cast<int>(object.integer(71)), static_cast<int>(object.integer(72)),
                             static_cast<int>(object.integer(74)), std::string(object.string(2)),
                             std::string(object.string(1)), std::string(object.string(7)),
                             radians(object.real(50)));
    auto* definition = new AcDbAttributeDefinition;
    readText(*definition, d, object);
    const std::wstring tag = m_codec.decode(d.tag);
    definition->setTag(tag.empty() ? L"TAG" : tag.c_str());
    definition->setPrompt(m_codec.decode(object.string(3)).c_str());
    const auto flags = object.integer(70, 0);
    definition->setInvisible((flags & kInvisible) != 0);
    definition->setConstant((flags & kConstant) != 0);
    definition->setPreset((flags & kPreset) != 0);
    return definition;
}

AcDbMText* DxfEntityReader::mtext(const DL_MTextData& d, const DxfObject& object) const {
    auto* mtext = new AcDbMText;
    mtext->setLocation(AcGePoint3d(d.ipx, d.ipy, d.ipz));
    mtext->setTextHeight(d.height);
    mtext->setWidth(d.width);
    mtext->setAttachment(static_cast<AcDbMText::AttachmentPoint>(std::clamp(d.attachmentPoint, 1, 9)));
    if (!d.style.empty()) mtext->setTextStyleName(m_codec.decode(d.style).c_str());
    // The contents are the 3 chunks followed by the 1 group.
    std::string contents;
    for (const DxfGroup& g : object.groups())
        if (g.code == 3) contents += g.value;
    contents += object.string(1);
    mtext->setContents(m_codec.decode(contents).c_str());
    // The direction vector wins over the angle, which is in radians here (dxflib takes degrees).
    if (object.has(11)) mtext->setRotation(std::atan2(object.real(21), object.real(11)));
    else mtext->setRotation(object.real(50, 0.0));
    return mtext;
}

AcDbBlockReference* DxfEntityReader::reference(const DL_InsertData& d, const AcDbObjectId& block) const {
    auto* reference = new AcDbBlockReference(AcGePoint3d(d.ipx, d.ipy, d.ipz), block);
    reference->setScaleFactors(AcGeScale3d(d.sx, d.sy, d.sz));  // a zero scale keeps 1
    reference->setRotation(radians(d.angle));
    return reference;
}
