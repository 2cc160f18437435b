#include "host/svg/AcSvgProperties.h"

#include "host/base/AcString.h"
#include "host/database/acdbOpenObject.h"

namespace {
// Calls f with every record of the table that opens for read.
template <class Record, class F>
void forEachRecord(const std::vector<AcDbObjectId>& ids, F&& f) {
    for (const AcDbObjectId& id : ids) {
        AcDbObjectPointer<Record> record(id, AcDb::kForRead);
        if (record) f(*record.object());
    }
}

template <class Table>
std::vector<AcDbObjectId> recordIds(const AcDbDatabase& db) {
    Table* table = nullptr;
    if (db.getSymbolTable(table, AcDb::kForRead) != Acad::eOk) return {};
    std::vector<AcDbObjectId> ids = table->recordIds();
    table->close();
    return ids;
}

// "arial.ttf" -> "arial, sans-serif"; shape fonts ("txt", "simplex.shx") have no CSS equivalent.
std::string fontFamilyOf(const std::wstring& fileName) {
    const auto dot = fileName.rfind(L'.');
    if (dot == std::wstring::npos) return "sans-serif";
    const std::wstring extension = fileName.substr(dot);
    if (!acutNamesEqual(extension, L".ttf") && !acutNamesEqual(extension, L".otf")) return "sans-serif";
    std::string family;
    for (char c : acutWcharToUtf8(fileName.substr(0, dot)))
        if (c != '"' && c != '\'' && c != ',' && c != ';') family += c;
    return family.empty() ? "sans-serif" : "'" + family + "', sans-serif";
}
}  // namespace

AcSvgProperties::AcSvgProperties(const AcDbDatabase& db) {
    forEachRecord<AcDbLinetypeTableRecord>(recordIds<AcDbLinetypeTable>(db), [&](const AcDbLinetypeTableRecord& r) {
        m_dashes[acutUpperName(r.name())] = r.dashes();
    });
    forEachRecord<AcDbLayerTableRecord>(recordIds<AcDbLayerTable>(db), [&](const AcDbLayerTableRecord& r) {
        Layer layer;
        if (r.colorIndex() >= 1 && r.colorIndex() <= 255) layer.color = r.colorIndex();
        AcDbObjectPointer<AcDbLinetypeTableRecord> linetype(r.linetypeObjectId(), AcDb::kForRead);
        if (linetype) layer.linetype = linetype->name();
        layer.visible = !r.isOff() && !r.isFrozen();
        m_layers[acutUpperName(r.name())] = layer;
    });
    forEachRecord<AcDbTextStyleTableRecord>(recordIds<AcDbTextStyleTable>(db), [&](const AcDbTextStyleTableRecord& r) {
        AcSvgTextStyle style;
        if (r.xScale() > 0.0) style.widthFactor = r.xScale();
        style.fontFamily = fontFamilyOf(r.fileName());
        m_styles[acutUpperName(r.name())] = style;
    });
}

const AcSvgProperties::Layer* AcSvgProperties::layer(const std::wstring& name) const {
    const auto found = m_layers.find(acutUpperName(name));
    return found == m_layers.end() ? nullptr : &found->second;
}

std::wstring AcSvgProperties::layerOf(const AcDbEntity& entity, const AcSvgInherited& inherited) const {
    if (!inherited.layer.empty() && entity.layer() == L"0") return inherited.layer;
    return entity.layer();
}

bool AcSvgProperties::isVisible(const AcDbEntity& entity, const AcSvgInherited& inherited) const {
    const Layer* found = layer(layerOf(entity, inherited));
    return !found || found->visible;
}

Adesk::UInt16 AcSvgProperties::colorOf(const AcDbEntity& entity, const AcSvgInherited& inherited) const {
    const Adesk::UInt16 color = entity.colorIndex();
    if (color == AcDb::kColorByBlock) return inherited.color;
    if (color == AcDb::kColorByLayer) {
        const Layer* found = layer(layerOf(entity, inherited));
        return found ? found->color : 7;
    }
    return color;
}

std::wstring AcSvgProperties::linetypeOf(const AcDbEntity& entity, const AcSvgInherited& inherited) const {
    const std::wstring& name = entity.linetype();
    if (acutNamesEqual(name, L"ByBlock")) return inherited.linetype;
    if (acutNamesEqual(name, L"ByLayer")) {
        const Layer* found = layer(layerOf(entity, inherited));
        return found ? found->linetype : L"Continuous";
    }
    return name;
}

const std::vector<double>& AcSvgProperties::dashesOf(const std::wstring& linetype) const {
    static const std::vector<double> kSolid;
    const auto found = m_dashes.find(acutUpperName(linetype));
    return found == m_dashes.end() ? kSolid : found->second;
}

AcSvgInherited AcSvgProperties::inheritedFrom(const AcDbBlockReference& reference,
                                              const AcSvgInherited& outer) const {
    AcSvgInherited inner;
    inner.color = colorOf(reference, outer);
    inner.linetype = linetypeOf(reference, outer);
    inner.layer = layerOf(reference, outer);
    return inner;
}

AcSvgTextStyle AcSvgProperties::textStyle(const std::wstring& name) const {
    const auto found = m_styles.find(acutUpperName(name));
    return found == m_styles.end() ? AcSvgTextStyle() : found->second;
}
