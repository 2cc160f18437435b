#include "host/dxf/DxfHeaderWriter.h"

namespace {
// Units of the inch-foot family: drawings in them measure in English units.
bool isImperial(int insunits) {
    return insunits == 1 || insunits == 2 || insunits == 3 || insunits == 8 || insunits == 9 || insunits == 10;
}
}  // namespace

void DxfHeaderWriter::write() const {
    m_out.sectionHeader();
    variable("$ACADVER");
    m_out.dxfString(1, "AC1015");
    variable("$ACADMAINTVER");
    m_out.dxfInt(70, 6);
    // Text is written as ASCII with escapes, so the file reads the same in any code page.
    variable("$DWGCODEPAGE");
    m_out.dxfString(3, "ANSI_1252");
    variable("$INSBASE");
    m_out.point(10, AcGePoint3d::kOrigin);
    variable("$LUNITS");
    m_out.dxfInt(70, 2);
    variable("$LUPREC");
    m_out.dxfInt(70, 4);
    variable("$TEXTSTYLE");
    m_out.dxfString(7, "Standard");
    variable("$CLAYER");
    m_out.dxfString(8, "0");
    variable("$CELTYPE");
    m_out.dxfString(6, "ByLayer");
    variable("$CECOLOR");
    m_out.dxfInt(62, 256);
    variable("$DIMSTYLE");
    m_out.dxfString(2, "Standard");
    variable("$HANDSEED");
    m_out.handle(5, m_handles.handseed());
    variable("$TILEMODE");
    m_out.dxfInt(70, 1);
    variable("$CMLSTYLE");
    m_out.dxfString(2, "Standard");
    variable("$MEASUREMENT");
    m_out.dxfInt(70, isImperial(m_db.insunits()) ? 0 : 1);
    variable("$INSUNITS");
    m_out.dxfInt(70, m_db.insunits());
    m_out.sectionEnd();
    classes();
}

void DxfHeaderWriter::classes() const {
    m_out.sectionClasses();
    const char* const entries[][2] = {
        {"ACDBDICTIONARYWDFLT", "AcDbDictionaryWithDefault"},
        {"ACDBPLACEHOLDER", "AcDbPlaceHolder"},
        {"LAYOUT", "AcDbLayout"},
    };
    for (const auto& entry : entries) {
        m_out.dxfString(0, "CLASS");
        m_out.dxfString(1, entry[0]);
        m_out.dxfString(2, entry[1]);
        m_out.dxfString(3, "ObjectDBX Classes");
        m_out.dxfInt(90, 0);  // no proxy capabilities needed
        m_out.dxfInt(280, 0);
        m_out.dxfInt(281, 0);  // an object, not an entity
    }
    m_out.sectionEnd();
}
