#include "host/dxf/DxfTableReader.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "host/base/AcString.h"
#include "host/database/AcDbDatabase.h"
#include "host/dxf/DxfXDataReader.h"

namespace {
template <class Record>
Record* named(const std::wstring& name) {
    if (name.empty()) return nullptr;
    auto* record = new Record;
    record->setName(name.c_str());
    return record;
}
}  // namespace

std::wstring dxfBlockName(const std::wstring& name) {
    if (acutNamesEqual(name, L"$MODEL_SPACE")) return ACDB_MODEL_SPACE;
    if (acutNamesEqual(name, L"$PAPER_SPACE")) return ACDB_PAPER_SPACE;
    return name;
}

void DxfTableReader::readXData(AcDbObject& record, const DxfObject& object) const {
    AcDbXDataList xdata;
    dxfReadXData(object, m_codec, xdata);
    for (AcDbXDataApp& app : xdata) record.setXData(std::move(app));
}

AcDbLayerTableRecord* DxfTableReader::layer(const DL_LayerData& d, const DxfObject& object,
                                            const AcDbDatabase& db) const {
    auto* layer = named<AcDbLayerTableRecord>(m_codec.decode(d.name));
    if (!layer) return nullptr;
    const auto color = object.integer(62, 7);
    layer->setColorIndex(static_cast<Adesk::UInt16>(std::clamp<std::int64_t>(std::abs(color), 1, 255)));
    layer->setIsOff(color < 0);
    layer->setIsFrozen((d.flags & 1) != 0);
    layer->setIsLocked((d.flags & 4) != 0);
    AcDbObjectId linetype = db.linetypeId(m_codec.decode(object.string(6)));
    if (linetype.isNull()) linetype = db.continuousLinetype();
    layer->setLinetypeObjectId(linetype);
    return layer;
}

AcDbLinetypeTableRecord* DxfTableReader::linetype(const DL_LinetypeData& d, const DxfObject& object) const {
    auto* linetype = named<AcDbLinetypeTableRecord>(m_codec.decode(d.name));
    if (!linetype) return nullptr;
    linetype->setComments(m_codec.decode(d.description).c_str());
    std::vector<double> dashes;
    for (const DxfGroup& g : object.groups())
        if (g.code == 49) dashes.push_back(g.real);
    linetype->setDashes(dashes);
    if (object.has(40)) linetype->setPatternLength(d.patternLength);
    return linetype;
}

AcDbTextStyleTableRecord* DxfTableReader::textStyle(const DL_StyleData& d) const {
    auto* style = named<AcDbTextStyleTableRecord>(m_codec.decode(d.name));
    if (!style) return nullptr;
    style->setFileName(m_codec.decode(d.primaryFontFile).c_str());
    style->setTextSize(d.fixedTextHeight);
    style->setXScale(d.widthFactor > 0.0 ? d.widthFactor : 1.0);
    style->setObliquingAngle(d.obliqueAngle * M_PI / 180.0);
    return style;
}

AcDbRegAppTableRecord* DxfTableReader::application(const DxfObject& object) const {
    return named<AcDbRegAppTableRecord>(m_codec.decode(object.string(2)));
}

AcDbBlockTableRecord* DxfTableReader::blockRecord(const DxfObject& object) const {
    return named<AcDbBlockTableRecord>(dxfBlockName(m_codec.decode(object.string(2))));
}
