#include "host/svg/AcSvgTextDrawer.h"

#include <gtest/gtest.h>

#include "host/entities/TextMetrics.h"
#include "host/svg/SvgTestSupport.h"

TEST(AcSvgTextDrawer, ExpandsTheHostsControlCodes) {
    EXPECT_EQ(AcSvgTextDrawer::expandControlCodes(L"%%c100 45%%D %%p0.5 %%%"), L"\u2300100 45\u00b0 \u00b10.5 %");
    EXPECT_EQ(AcSvgTextDrawer::expandControlCodes(L"%%uDN%%u 50%"), L"DN 50%");
    EXPECT_EQ(AcSvgTextDrawer::expandControlCodes(L"%%065%%x"), L"A%%x");
}

TEST(AcSvgTextDrawer, LeavesOutMultiLineTextFormatting) {
    EXPECT_EQ(AcSvgTextDrawer::plainMTextLine(L"{\\fArial|b1|i0;Bold} \\H2.5x;big\\~end"), L"Bold big\u00a0end");
    EXPECT_EQ(AcSvgTextDrawer::plainMTextLine(L"\\S1^2; \\\\ \\{x\\}"), L"1/2 \\ {x}");
    EXPECT_EQ(AcSvgTextDrawer::plainMTextLine(L"\\Lunder\\l \\Q15;"), L"under ");
}

TEST(AcSvgTextDrawer, PlacesAlignedTextsByTheirAlignmentPointAndStyle) {
    AcDbDatabase db;
    AcDbTextStyleTable* styles = nullptr;
    db.getTextStyleTable(styles, AcDb::kForWrite);
    auto* narrow = new AcDbTextStyleTableRecord;
    narrow->setName(L"NARROW");
    narrow->setXScale(0.5);
    narrow->setFileName(L"arial.ttf");
    styles->add(narrow);
    narrow->close();
    styles->close();
    auto* centred = new AcDbText(AcGePoint3d(0, 0, 0), L"Pump", AcDbObjectId(), 2.0);
    centred->setTextStyleName(L"NARROW");
    centred->setHorizontalMode(AcDb::kTextCenter);
    centred->setVerticalMode(AcDb::kTextTop);
    centred->setAlignmentPoint(AcGePoint3d(50, 25, 0));
    svgtest::addToModelSpace(db, centred);
    const pugi::xml_document doc = svgtest::render(db);
    const pugi::xml_node text = svgtest::byClass(doc, "text").first().node();
    // Centred on x = 50, base line one height below y = 25; the style's width factor narrows the
    // glyphs, and the length they are fitted to is the host's measure before narrowing.
    EXPECT_STREQ(text.attribute("transform").value(), "matrix(0.5 0 0 1 120 74)");
    EXPECT_STREQ(text.attribute("text-anchor").value(), "middle");
    EXPECT_EQ(text.attribute("textLength").value(), acsvgNumber(acdbTextWidth(L"Pump", 2.0) * 2.0));
    EXPECT_STREQ(text.attribute("font-family").value(), "'arial', sans-serif");
}
