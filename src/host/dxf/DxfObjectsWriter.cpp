#include "host/dxf/DxfObjectsWriter.h"

using Record = DxfFileHandles::Record;

void DxfObjectsWriter::write() const {
    const AcDbObjectId model = m_db.modelSpaceId();
    const AcDbObjectId paper = m_db.blockId(ACDB_PAPER_SPACE);
    m_out.sectionObjects();
    dictionary("DICTIONARY", Record::kRootDictionary, 0);
    entry("ACAD_GROUP", Record::kGroupDictionary);
    entry("ACAD_LAYOUT", Record::kLayoutDictionary);
    entry("ACAD_MLINESTYLE", Record::kMlineStyleDictionary);
    entry("ACAD_PLOTSTYLENAME", Record::kPlotStyleDictionary);

    dictionary("DICTIONARY", Record::kGroupDictionary, m_handles.handle(Record::kRootDictionary));

    dictionary("DICTIONARY", Record::kLayoutDictionary, m_handles.handle(Record::kRootDictionary));
    if (!paper.isNull()) entry("Layout1", Record::kPaperLayout);
    if (!model.isNull()) entry("Model", Record::kModelLayout);

    dictionary("DICTIONARY", Record::kMlineStyleDictionary, m_handles.handle(Record::kRootDictionary));
    entry("Standard", Record::kStandardMlineStyle);

    dictionary("ACDBDICTIONARYWDFLT", Record::kPlotStyleDictionary, m_handles.handle(Record::kRootDictionary));
    entry("Normal", Record::kNormalPlotStyle);
    m_out.subClass("AcDbDictionaryWithDefault");
    m_out.handle(340, m_handles.handle(Record::kNormalPlotStyle));

    m_out.dxfString(0, "ACDBPLACEHOLDER");
    m_out.handle(5, m_handles.handle(Record::kNormalPlotStyle));
    m_out.handle(330, m_handles.handle(Record::kPlotStyleDictionary));

    standardMlineStyle();
    if (!model.isNull()) layout(Record::kModelLayout, "Model", 0, model);
    if (!paper.isNull()) layout(Record::kPaperLayout, "Layout1", 1, paper);
    m_out.sectionEnd();
}

void DxfObjectsWriter::dictionary(const char* type, Record self, Adesk::UInt32 owner) const {
    m_out.dxfString(0, type);
    m_out.handle(5, m_handles.handle(self));
    m_out.handle(330, owner);
    m_out.subClass("AcDbDictionary");
    m_out.dxfInt(281, 1);  // entries are kept when their owner goes
}

void DxfObjectsWriter::entry(const char* name, Record target) const {
    m_out.dxfString(3, name);
    m_out.handle(350, m_handles.handle(target));
}

void DxfObjectsWriter::standardMlineStyle() const {
    m_out.dxfString(0, "MLINESTYLE");
    m_out.handle(5, m_handles.handle(Record::kStandardMlineStyle));
    m_out.handle(330, m_handles.handle(Record::kMlineStyleDictionary));
    m_out.subClass("AcDbMlineStyle");
    m_out.dxfString(2, "Standard");
    m_out.dxfInt(70, 0);
    m_out.dxfString(3, "");
    m_out.dxfInt(62, 256);
    m_out.dxfReal(51, 90.0);
    m_out.dxfReal(52, 90.0);
    m_out.dxfInt(71, 2);  // two elements, half a unit either side
    for (const double offset : {0.5, -0.5}) {
        m_out.dxfReal(49, offset);
        m_out.dxfInt(62, 256);
        m_out.dxfString(6, "BYLAYER");
    }
}

void DxfObjectsWriter::layout(Record self, const char* name, int tabOrder, AcDbObjectId block) const {
    m_out.dxfString(0, "LAYOUT");
    m_out.handle(5, m_handles.handle(self));
    m_out.handle(330, m_handles.handle(Record::kLayoutDictionary));
    m_out.subClass("AcDbPlotSettings");
    m_out.dxfString(1, "");
    m_out.dxfString(2, "none_device");
    m_out.dxfString(4, "");
    m_out.dxfString(6, "");
    for (const int code : {40, 41, 42, 43, 44, 45, 46, 47, 48, 49, 140, 141}) m_out.dxfReal(code, 0.0);
    m_out.dxfReal(142, 1.0);  // plot scale 1:1
    m_out.dxfReal(143, 1.0);
    m_out.dxfInt(70, tabOrder == 0 ? 1024 : 0);
    m_out.dxfInt(72, 1);  // paper units: millimetres
    m_out.dxfInt(73, 0);
    m_out.dxfInt(74, 5);  // plot the layout
    m_out.dxfString(7, "");
    m_out.dxfInt(75, 16);
    m_out.dxfReal(147, 1.0);
    m_out.dxfReal(148, 0.0);
    m_out.dxfReal(149, 0.0);
    m_out.subClass("AcDbLayout");
    m_out.dxfString(1, name);
    m_out.dxfInt(70, 1);
    m_out.dxfInt(71, tabOrder);
    m_out.point2d(10, 0.0, 0.0);      // limits
    m_out.point2d(11, 420.0, 297.0);
    m_out.point(12, AcGePoint3d::kOrigin);  // insertion base
    m_out.point(14, AcGePoint3d(1e20, 1e20, 1e20));  // extents not yet known
    m_out.point(15, AcGePoint3d(-1e20, -1e20, -1e20));
    m_out.dxfReal(146, 0.0);
    m_out.point(13, AcGePoint3d::kOrigin);  // UCS origin and axes
    m_out.point(16, AcGePoint3d(1.0, 0.0, 0.0));
    m_out.point(17, AcGePoint3d(0.0, 1.0, 0.0));
    m_out.dxfInt(76, 1);
    m_out.handle(330, block.handle());
}
