#pragma once
// Makes database entities from what dxflib reports of an entity, with what it leaves out taken
// from the entity's groups: oblique angle and attribute flags, polyline widths, multi-line text
// chunks and direction, attribute definitions (which dxflib does not read at all).

#include <dl_attributes.h>
#include <dl_entities.h>
#include <dl_extrusion.h>

#include <string>

#include "host/dxf/DxfObject.h"
#include "host/dxf/DxfTextCodec.h"

class AcDbArc;
class AcDbAttribute;
class AcDbAttributeDefinition;
class AcDbBlockReference;
class AcDbCircle;
class AcDbEntity;
class AcDbLine;
class AcDbMText;
class AcDbObjectId;
class AcDbPoint;
class AcDbPolyline;
class AcDbText;

class DxfEntityReader {
public:
    // The codec may change (the header names the code page) while the reader is in use.
    explicit DxfEntityReader(const DxfTextCodec& codec) : m_codec(codec) {}

    AcDbLine* line(const DL_LineData& d) const;
    AcDbPoint* point(const DL_PointData& d) const;
    AcDbCircle* circle(const DL_CircleData& d, const DL_Extrusion& extrusion) const;
    AcDbArc* arc(const DL_ArcData& d, const DL_Extrusion& extrusion) const;
    AcDbPolyline* polyline(const DxfObject& object) const;
    AcDbText* text(const DL_TextData& d, const DxfObject& object) const;
    AcDbAttribute* attribute(const DL_AttributeData& d, const DxfObject& object) const;
    AcDbAttributeDefinition* attributeDefinition(const DxfObject& object) const;
    AcDbMText* mtext(const DL_MTextData& d, const DxfObject& object) const;
    AcDbBlockReference* reference(const DL_InsertData& d, const AcDbObjectId& block) const;

    // Layer, colour, linetype and extended data; the entity is not in a database yet.
    void readCommon(AcDbEntity& entity, const DL_Attributes& attributes, const DxfObject& object);

private:
    void readText(AcDbText& text, const DL_TextData& d, const DxfObject& object) const;

    const DxfTextCodec& m_codec;
    std::string m_layerBytes;  // the last layer name read, and its decoded form
    int m_layerCodePage = 0;
    std::wstring m_layerName;
};
