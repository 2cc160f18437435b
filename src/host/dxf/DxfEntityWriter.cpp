#include "host/dxf/DxfEntityWriter.h"

#include <algorithm>
#include <cmath>

#include "host/base/AcString.h"

#include "host/dxf/DxfOcs.h"
#include "host/dxf/DxfTextCodec.h"
#include "host/dxf/DxfXDataWriter.h"
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
constexpr std::size_t kMTextChunk = 250;

int attributeFlags(bool invisible, bool constant, bool preset) {
    return (invisible ? 1 : 0) | (constant ? 2 : 0) | (preset ? 8 : 0);
}

// Multi-line text in the file's form: line breaks become paragraph codes.
std::string mtextContents(const std::wstring& contents) {
    std::wstring text;
    text.reserve(contents.size());
    for (std::size_t i = 0; i < contents.size(); ++i) {
        if (contents[i] == L'\r' && i + 1 < contents.size() && contents[i + 1] == L'\n') continue;
        if (contents[i] == L'\n' || contents[i] == L'\r') text += L"\\P";
        else text += contents[i];
    }
    return DxfTextCodec::encode(text);
}

// Where the next chunk of at most kMTextChunk bytes ends: never inside a "\U+XXXX" escape.
std::size_t chunkEnd(const std::string& text, std::size_t begin) {
    std::size_t end = std::min(text.size(), begin + kMTextChunk);
    if (end == text.size()) return end;
    for (std::size_t k = end > 6 ? end - 6 : begin; k < end; ++k)
        if (text.compare(k, 3, "\\U+") == 0 && k + 7 > end) return k > begin ? k : end;
    return end;
}
}  // namespace

bool DxfEntityWriter::write(const AcDbEntity& entity, Adesk::UInt32 owner, bool paperSpace) const {
    // By the host's class name: cheaper than a chain of casts, and exact, as a file's kinds are.
    const std::wstring_view kind = entity.isA();
    const auto begin = [&](const char* type) { head(type, entity, owner, paperSpace); };
    if (kind == L"AcDbLine") {
        begin("LINE");
        line(static_cast<const AcDbLine&>(entity));
    } else if (kind == L"AcDbPolyline") {
        begin("LWPOLYLINE");
        polyline(static_cast<const AcDbPolyline&>(entity));
    } else if (kind == L"AcDbBlockReference") {
        // A reference to no block has no form in a file (readers drop a nameless INSERT).
        const AcDbObjectId block = static_cast<const AcDbBlockReference&>(entity).blockTableRecord();
        if (block.isNull() || block.isErased()) return false;
        begin("INSERT");
        reference(static_cast<const AcDbBlockReference&>(entity));
    } else if (kind == L"AcDbText") {
        begin("TEXT");
        textBody(static_cast<const AcDbText&>(entity));
        m_out.subClass("AcDbText");
        m_out.dxfInt(73, static_cast<const AcDbText&>(entity).verticalMode());
    } else if (kind == L"AcDbAttributeDefinition") {
        begin("ATTDEF");
        attributeDefinition(static_cast<const AcDbAttributeDefinition&>(entity));
    } else if (kind == L"AcDbMText") {
        begin("MTEXT");
        mtext(static_cast<const AcDbMText&>(entity));
    } else if (kind == L"AcDbCircle") {
        begin("CIRCLE");
        circle(static_cast<const AcDbCircle&>(entity));
    } else if (kind == L"AcDbArc") {
        begin("ARC");
        arc(static_cast<const AcDbArc&>(entity));
    } else if (kind == L"AcDbPoint") {
        begin("POINT");
        point(static_cast<const AcDbPoint&>(entity));
    } else {
        return false;  // attributes are written with their block reference
    }
    dxfWriteXData(m_out, entity.xDataList());
    if (kind == L"AcDbBlockReference") attributesOf(static_cast<const AcDbBlockReference&>(entity), paperSpace);
    return true;
}

void DxfEntityWriter::head(const char* type, const AcDbEntity& entity, Adesk::UInt32 owner, bool paperSpace) const {
    m_out.dxfString(0, type);
    m_out.handle(5, entity.objectId().handle());
    m_out.handle(330, owner);
    m_out.subClass("AcDbEntity");
    if (paperSpace) m_out.dxfInt(67, 1);
    m_out.text(8, entity.layer());
    if (!acutNamesEqual(entity.linetype(), L"ByLayer")) m_out.text(6, entity.linetype());
    if (entity.colorIndex() != AcDb::kColorByLayer) m_out.dxfInt(62, entity.colorIndex());
    if (entity.linetypeScale() != 1.0) m_out.dxfReal(48, entity.linetypeScale());
}

void DxfEntityWriter::line(const AcDbLine& e) const {
    m_out.subClass("AcDbLine");
    m_out.point(10, e.startPoint());
    m_out.point(11, e.endPoint());
}

void DxfEntityWriter::point(const AcDbPoint& e) const {
    m_out.subClass("AcDbPoint");
    m_out.point(10, e.position());
}

void DxfEntityWriter::circle(const AcDbCircle& e) const {
    const DxfOcs ocs(e.normal());
    m_out.subClass("AcDbCircle");
    m_out.point(10, ocs.fromWorld(e.center()));
    m_out.dxfReal(40, e.radius());
    if (!ocs.isWorld()) {
        m_out.dxfReal(210, e.normal().x);
        m_out.dxfReal(220, e.normal().y);
        m_out.dxfReal(230, e.normal().z);
    }
}

void DxfEntityWriter::arc(const AcDbArc& e) const {
    m_out.subClass("AcDbCircle");
    m_out.point(10, e.center());
    m_out.dxfReal(40, e.radius());
    m_out.subClass("AcDbArc");
    m_out.angle(50, e.startAngle());
    m_out.angle(51, e.endAngle());
}

void DxfEntityWriter::polyline(const AcDbPolyline& e) const {
    const unsigned n = e.numVerts();
    bool widths = false;
    for (unsigned i = 0; i < n && !widths; ++i) {
        double start = 0.0;
        double end = 0.0;
        e.getWidthsAt(i, start, end);
        widths = start != 0.0 || end != 0.0;
    }
    m_out.subClass("AcDbPolyline");
    m_out.dxfInt(90, static_cast<int>(n));
    m_out.dxfInt(70, e.isClosed() ? 1 : 0);
    if (e.elevation() != 0.0) m_out.dxfReal(38, e.elevation());
    for (unsigned i = 0; i < n; ++i) {
        AcGePoint2d p;
        double bulge = 0.0;
        e.getPointAt(i, p);
        e.getBulgeAt(i, bulge);
        m_out.dxfReal(10, p.x);
        m_out.dxfReal(20, p.y);
        if (widths) {
            double start = 0.0;
            double end = 0.0;
            e.getWidthsAt(i, start, end);
            m_out.dxfReal(40, start);
            m_out.dxfReal(41, end);
        }
        if (bulge != 0.0) m_out.dxfReal(42, bulge);
    }
}

void DxfEntityWriter::textBody(const AcDbText& e) const {
    m_out.subClass("AcDbText");
    m_out.point(10, e.position());
    m_out.dxfReal(40, e.height());
    m_out.text(1, e.textString());
    m_out.angle(50, e.rotation());
    m_out.dxfReal(41, e.widthFactor());
    m_out.angle(51, e.oblique());
    m_out.text(7, e.textStyleName());
    m_out.dxfInt(71, (e.isMirroredInX() ? 2 : 0) | (e.isMirroredInY() ? 4 : 0));
    m_out.dxfInt(72, e.horizontalMode());
    if (!e.isDefaultAlignment()) m_out.point(11, e.alignmentPoint());
}

void DxfEntityWriter::attributeDefinition(const AcDbAttributeDefinition& e) const {
    textBody(e);
    m_out.subClass("AcDbAttributeDefinition");
    m_out.text(3, e.prompt());
    m_out.text(2, e.tag());
    m_out.dxfInt(70, attributeFlags(e.isInvisible(), e.isConstant(), e.isPreset()));
    m_out.dxfInt(73, 0);
    m_out.dxfInt(74, e.verticalMode());
}

void DxfEntityWriter::attribute(const AcDbAttribute& e) const {
    textBody(e);
    m_out.subClass("AcDbAttribute");
    m_out.text(2, e.tag());
    m_out.dxfInt(70, attributeFlags(e.isInvisible(), e.isConstant(), false));
    m_out.dxfInt(73, 0);
    m_out.dxfInt(74, e.verticalMode());
}

void DxfEntityWriter::mtext(const AcDbMText& e) const {
    m_out.subClass("AcDbMText");
    m_out.point(10, e.location());
    m_out.dxfReal(40, e.textHeight());
    m_out.dxfReal(41, e.width());
    m_out.dxfInt(71, e.attachment());
    m_out.dxfInt(72, 1);  // left to right
    // Contents beyond one chunk go in 3 groups before the last chunk in 1.
    const std::string contents = mtextContents(e.contents());
    std::size_t begin = 0;
    for (std::size_t end = chunkEnd(contents, begin); end < contents.size(); end = chunkEnd(contents, begin)) {
        m_out.dxfString(3, contents.substr(begin, end - begin));
        begin = end;
    }
    m_out.dxfString(1, contents.substr(begin));
    m_out.text(7, e.textStyleName());
    // The direction, not the angle, is what readers take for the rotation.
    m_out.point(11, AcGePoint3d(std::cos(e.rotation()), std::sin(e.rotation()), 0.0));
}

void DxfEntityWriter::reference(const AcDbBlockReference& e) const {
    const auto* block = dynamic_cast<const AcDbBlockTableRecord*>(AcDbDatabase::peekObject(e.blockTableRecord()));
    m_out.subClass("AcDbBlockReference");
    if (dxfHasAttributes(e.objectId())) m_out.dxfInt(66, 1);
    m_out.text(2, block ? block->name() : std::wstring());
    m_out.point(10, e.position());
    m_out.dxfReal(41, e.scaleFactors().sx);
    m_out.dxfReal(42, e.scaleFactors().sy);
    m_out.dxfReal(43, e.scaleFactors().sz);
    m_out.angle(50, e.rotation());
}

void DxfEntityWriter::attributesOf(const AcDbBlockReference& e, bool paperSpace) const {
    if (!dxfHasAttributes(e.objectId())) return;
    const Adesk::UInt32 owner = e.objectId().handle();
    for (const AcDbObjectId& id : e.attributeIds()) {
        const auto* a = dynamic_cast<const AcDbAttribute*>(AcDbDatabase::peekObject(id));
        if (!a || id.isErased()) continue;
        head("ATTRIB", *a, owner, paperSpace);
        attribute(*a);
        dxfWriteXData(m_out, a->xDataList());
    }
    m_out.dxfString(0, "SEQEND");
    m_out.handle(5, m_handles.sequenceEnd(e.objectId()));
    m_out.handle(330, owner);
    m_out.subClass("AcDbEntity");
    if (paperSpace) m_out.dxfInt(67, 1);
    m_out.text(8, e.layer());
}
