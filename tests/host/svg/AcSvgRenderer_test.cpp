#include "host/svg/AcSvgRenderer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <unistd.h>

#include "host/entities/AcDbArc.h"
#include "host/entities/AcDbBlockReference.h"
#include "host/entities/AcDbCircle.h"
#include "host/entities/AcDbLine.h"
#include "host/entities/AcDbMText.h"
#include "host/entities/AcDbPoint.h"
#include "host/entities/AcDbPolyline.h"
#include "host/entities/AcDbText.h"
#include "host/svg/AcSvgWriter.h"
#include "host/svg/SvgTestSupport.h"

using namespace svgtest;

namespace {
AcDbLine* lineOn(const wchar_t* layer, Adesk::UInt16 color = AcDb::kColorByLayer) {
    auto* line = new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(10, 0, 0));
    line->setLayer(layer);
    line->setColorIndex(color);
    return line;
}

AcDbBlockReference* reference(AcDbObjectId block, const AcGePoint3d& at, const AcGeScale3d& scale = AcGeScale3d(1.0)) {
    auto* insert = new AcDbBlockReference(at, block);
    insert->setScaleFactors(scale);
    return insert;
}

std::vector<std::string> attributeOf(const pugi::xpath_node_set& nodes, const char* name) {
    std::vector<std::string> values;
    for (const auto& node : nodes) values.emplace_back(node.node().attribute(name).value());
    return values;
}
}  // namespace

TEST(AcSvgRenderer, DrawsALineInAKnownWindowOnWhitePaper) {
    AcDbDatabase db;
    addToModelSpace(db, new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(10, 0, 0)));
    const auto doc = render(db);
    const pugi::xml_node svg = doc.child("svg");
    ASSERT_TRUE(svg);
    EXPECT_STREQ(svg.attribute("xmlns").value(), "http://www.w3.org/2000/svg");
    EXPECT_STREQ(svg.attribute("viewBox").value(), "0 0 240 140");
    EXPECT_STREQ(svg.child("rect").attribute("fill").value(), "#ffffff");
    const pugi::xml_node line = byClass(doc, "line").first().node();
    EXPECT_STREQ(line.attribute("x1").value(), "20");
    EXPECT_STREQ(line.attribute("y1").value(), "120");
    EXPECT_STREQ(line.attribute("x2").value(), "40");
    EXPECT_STREQ(line.attribute("y2").value(), "120");
    EXPECT_STREQ(line.attribute("stroke").value(), "#000000");  // colour 7 on white paper
    EXPECT_TRUE(svg.find_node([](const pugi::xml_node& n) { return std::string(n.name()) == "clipPath"; }));
}

TEST(AcSvgRenderer, FitsTheDrawingsExtentsWithAMarginWithoutAWindow) {
    AcDbDatabase db;
    addToModelSpace(db, new AcDbLine(AcGePoint3d(100, 100, 0), AcGePoint3d(300, 200, 0)));
    const auto doc = render(db, AcSvgOptions());
    EXPECT_STREQ(doc.child("svg").attribute("width").value(), "1600");
    EXPECT_STREQ(doc.child("svg").attribute("height").value(), "820");
    const pugi::xml_node line = byClass(doc, "line").first().node();
    EXPECT_STREQ(line.attribute("x1").value(), "20");
    EXPECT_STREQ(line.attribute("y1").value(), "800");
    EXPECT_STREQ(line.attribute("x2").value(), "1580");
    EXPECT_STREQ(line.attribute("y2").value(), "20");
}

TEST(AcSvgRenderer, ArcsKeepTheirTurnAlsoInMirroredReferences) {
    AcDbDatabase db;
    addToModelSpace(db, new AcDbArc(AcGePoint3d(50, 25, 0), 10, 0, M_PI / 2));
    const AcDbObjectId block = addBlock(db, L"ARC", {new AcDbArc(AcGePoint3d(0, 0, 0), 10, 0, M_PI / 2)});
    addToModelSpace(db, reference(block, AcGePoint3d(50, 25, 0), AcGeScale3d(-1, 1, 1)));
    const auto doc = render(db);
    // Counter-clockwise in the drawing is sweep 0 on the picture, whose Y runs down.
    EXPECT_EQ(attributeOf(byClass(doc, "arc"), "d"),
              (std::vector<std::string>{"M140 70 A20 20 0 0 0 120 50", "M100 70 A20 20 0 0 1 120 50"}));
}

TEST(AcSvgRenderer, PolylinesDrawBulgesAsArcsWidthsAsStrokesAndClose) {
    AcDbDatabase db;
    auto* closed = new AcDbPolyline;
    closed->addVertexAt(0, AcGePoint2d(0, 0), 1.0);  // a half circle below the chord
    closed->addVertexAt(1, AcGePoint2d(10, 0));
    closed->addVertexAt(2, AcGePoint2d(10, 10));
    closed->setClosed(true);
    closed->setConstantWidth(1.0);
    addToModelSpace(db, closed);
    auto* tapered = new AcDbPolyline;
    tapered->addVertexAt(0, AcGePoint2d(50, 0), 0.0, 1.0, 3.0);
    tapered->addVertexAt(1, AcGePoint2d(60, 0), 0.0, 2.0, 2.0);
    tapered->addVertexAt(2, AcGePoint2d(60, 10));
    addToModelSpace(db, tapered);
    const auto doc = render(db);
    const auto paths = byClass(doc, "polyline");
    ASSERT_EQ(paths.size(), 3u);
    // The closing segment is drawn (it may bend) before the path closes; a segment that widens is
    // filled as the area it covers.
    EXPECT_EQ(attributeOf(paths, "d"), (std::vector<std::string>{"M20 120 A10 10 0 0 0 40 120 L40 100 L20 120 Z",
                                                                 "M120 119 L140 117 L140 123 L120 121 Z",
                                                                 "M140 120 L140 100"}));
    EXPECT_EQ(attributeOf(paths, "stroke-width"), (std::vector<std::string>{"2", "", "4"}));
    EXPECT_EQ(attributeOf(paths, "fill"), (std::vector<std::string>{"", "#000000", ""}));
}

TEST(AcSvgRenderer, ColoursResolveByLayerAndByBlockThroughNestedReferences) {
    AcDbDatabase db;
    AcDbObjectId id;
    db.addLayer(id, L"RED", 1);
    db.addLayer(id, L"BLUE", 5);
    addToModelSpace(db, lineOn(L"RED"));
    addToModelSpace(db, lineOn(L"0", 30));
    const AcDbObjectId inner = addBlock(db, L"INNER", {lineOn(L"0", AcDb::kColorByBlock), lineOn(L"0"), lineOn(L"0", 3)});
    auto* onBlue = reference(inner, AcGePoint3d(20, 0, 0));
    onBlue->setLayer(L"BLUE");
    addToModelSpace(db, onBlue);
    auto* yellowOnRed = reference(inner, AcGePoint3d(40, 0, 0));
    yellowOnRed->setLayer(L"RED");
    yellowOnRed->setColorIndex(2);
    addToModelSpace(db, yellowOnRed);
    auto* nested = reference(inner, AcGePoint3d(0, 0, 0));
    nested->setColorIndex(AcDb::kColorByBlock);
    const AcDbObjectId outer = addBlock(db, L"OUTER", {nested});
    auto* magenta = reference(outer, AcGePoint3d(60, 0, 0));
    magenta->setLayer(L"BLUE");
    magenta->setColorIndex(6);
    addToModelSpace(db, magenta);
    const auto doc = render(db);
    EXPECT_EQ(attributeOf(byClass(doc, "line"), "stroke"),
              (std::vector<std::string>{"#ff0000", "#ff7f00",   // by layer, index 30
                                        "#0000ff", "#0000ff", "#00ff00",   // reference by layer on BLUE
                                        "#ffff00", "#ff0000", "#00ff00",   // yellow reference on RED
                                        "#ff00ff", "#0000ff", "#00ff00"}));  // by block twice over
}

TEST(AcSvgRenderer, LinetypesBecomeDashArraysScaledToThePicture) {
    AcDbDatabase db;
    AcDbObjectId id;
    db.addLayer(id, L"HID", 7, L"DASHED");
    addToModelSpace(db, lineOn(L"HID"));
    auto* dashDot = lineOn(L"0");
    dashDot->setLinetypeScale(0.5);
    addToModelSpace(db, dashDot);
    dashDot->upgradeOpen();
    dashDot->setLinetype(L"DASHDOT");
    dashDot->close();
    auto* byBlock = lineOn(L"0");
    const AcDbObjectId block = addBlock(db, L"B", {byBlock});
    acdbOpenObject(byBlock, byBlock->objectId(), AcDb::kForWrite);
    byBlock->setLinetype(L"ByBlock");
    byBlock->close();
    auto* hidden = reference(block, AcGePoint3d(0, 20, 0), AcGeScale3d(2.0));
    addToModelSpace(db, hidden);
    acdbOpenObject(hidden, hidden->objectId(), AcDb::kForWrite);
    hidden->setLinetype(L"HIDDEN");
    hidden->close();
    const auto doc = render(db);
    EXPECT_EQ(attributeOf(byClass(doc, "line"), "stroke-dasharray"),
              (std::vector<std::string>{"25.4 12.7", "12.7 6.35 0 6.35", "25.4 12.7"}));
    // Shown small, a pattern is stretched so that it still reads as dashed.
    AcSvgOptions small = knownWindow();
    small.minPatternLength = 100.0;
    EXPECT_EQ(attributeOf(byClass(render(db, small), "line"), "stroke-dasharray")[0], "66.667 33.333");
}

TEST(AcSvgRenderer, TextsReadUprightAndMirroredReferencesMirrorThem) {
    AcDbDatabase db;
    addToModelSpace(db, new AcDbText(AcGePoint3d(10, 10, 0), L"AB", AcDbObjectId(), 2.5));
    addToModelSpace(db, new AcDbText(AcGePoint3d(10, 10, 0), L"AB", AcDbObjectId(), 2.5, M_PI / 2));
    auto* backwards = new AcDbText(AcGePoint3d(0, 0, 0), L"AB", AcDbObjectId(), 2.5);
    backwards->mirrorInX(true);
    const AcDbObjectId block = addBlock(db, L"TAG", {new AcDbText(AcGePoint3d(0, 0, 0), L"AB", AcDbObjectId(), 2.5), backwards});
    addToModelSpace(db, reference(block, AcGePoint3d(50, 25, 0), AcGeScale3d(-1, 1, 1)));
    const auto doc = render(db);
    const auto texts = byClass(doc, "text");
    EXPECT_EQ(attributeOf(texts, "transform"),
              (std::vector<std::string>{"matrix(1 0 0 1 40 100)", "matrix(0 -1 1 0 40 100)",
                                        "matrix(-1 0 0 1 120 70)",  // mirrored with its reference
                                        "matrix(1 0 0 1 120 70)"}));  // mirrored twice: readable
    EXPECT_STREQ(texts.first().node().attribute("font-size").value(), "6.944");  // cap height 2.5 * 2
    EXPECT_STREQ(texts.first().node().text().get(), "AB");
}

TEST(AcSvgRenderer, MultiLineTextsSplitIntoLinesPlacedByTheirAttachment) {
    AcDbDatabase db;
    auto* topLeft = new AcDbMText;
    topLeft->setLocation(AcGePoint3d(10, 40, 0));
    topLeft->setTextHeight(3.0);
    topLeft->setContents(L"One\\PTwo");
    addToModelSpace(db, topLeft);
    auto* bottomRight = new AcDbMText;
    bottomRight->setLocation(AcGePoint3d(90, 10, 0));
    bottomRight->setTextHeight(3.0);
    bottomRight->setContents(L"{\\fArial|b1;Last}");
    bottomRight->setAttachment(AcDbMText::kBottomRight);
    addToModelSpace(db, bottomRight);
    const auto doc = render(db);
    const auto lines = byClass(doc, "mtext");
    ASSERT_EQ(lines.size(), 3u);
    // Base lines one cap height below the top, then 5/3 of it apart.
    EXPECT_STREQ(lines[0].node().attribute("transform").value(), "matrix(1 0 0 1 40 46)");
    EXPECT_STREQ(lines[1].node().attribute("transform").value(), "matrix(1 0 0 1 40 56)");
    EXPECT_STREQ(lines[2].node().text().get(), "Last");
    // Right ends on the location, whatever the viewer's font.
    EXPECT_STREQ(lines[2].node().attribute("transform").value(), "matrix(1 0 0 1 200 100)");
    EXPECT_STREQ(lines[2].node().attribute("text-anchor").value(), "end");
}

TEST(AcSvgRenderer, ReferencesShowTheirVisibleAttributesAndPointsShowAsMarks) {
    AcDbDatabase db;
    const AcDbObjectId block = addBlock(db, L"POS", {new AcDbCircle(AcGePoint3d(0, 0, 0), AcGeVector3d::kZAxis, 5)});
    auto* insert = reference(block, AcGePoint3d(50, 25, 0));
    insert->appendAttribute(new AcDbAttribute(AcGePoint3d(50, 25, 0), L"P1", L"POS"));
    auto* secret = new AcDbAttribute(AcGePoint3d(50, 25, 0), L"hidden", L"SECRET");
    secret->setInvisible(true);
    insert->appendAttribute(secret);
    addToModelSpace(db, insert);
    addToModelSpace(db, new AcDbPoint(AcGePoint3d(5, 5, 0)));
    const auto doc = render(db);
    const auto attributes = doc.select_nodes("//g[@class='insert' and @data-block='POS']/text[@class='attribute']");
    ASSERT_EQ(attributes.size(), 1u);
    EXPECT_STREQ(attributes.first().node().text().get(), "P1");
    EXPECT_STREQ(byClass(doc, "circle").first().node().attribute("r").value(), "10");
    EXPECT_STREQ(byClass(doc, "point").first().node().attribute("cx").value(), "30");
}

TEST(AcSvgRenderer, UnequallyScaledCirclesBecomeClosedPaths) {
    AcDbDatabase db;
    const AcDbObjectId block = addBlock(db, L"C", {new AcDbCircle(AcGePoint3d(0, 0, 0), AcGeVector3d::kZAxis, 5)});
    addToModelSpace(db, reference(block, AcGePoint3d(50, 25, 0), AcGeScale3d(2, 1, 1)));
    const pugi::xml_document doc = render(db);
    const pugi::xml_node circle = byClass(doc, "circle").first().node();
    EXPECT_STREQ(circle.name(), "path");
    const std::string d = circle.attribute("d").value();
    EXPECT_EQ(d.rfind("M140 70 L", 0), 0u);  // starts at (50 + 2 * 5, 25)
    EXPECT_EQ(d.substr(d.size() - 2), " Z");
}

TEST(AcSvgRenderer, LeavesOutHiddenLayersAndEntitiesOutsideTheWindow) {
    AcDbDatabase db;
    AcDbObjectId frozen;
    db.addLayer(frozen, L"FROZEN");
    AcDbLayerTableRecord* layer = nullptr;
    acdbOpenObject(layer, frozen, AcDb::kForWrite);
    layer->setIsFrozen(true);
    layer->close();
    addToModelSpace(db, lineOn(L"FROZEN"));
    addToModelSpace(db, new AcDbLine(AcGePoint3d(500, 500, 0), AcGePoint3d(600, 500, 0)));
    addToModelSpace(db, lineOn(L"0"));
    EXPECT_EQ(byClass(render(db), "line").size(), 1u);
}

TEST(AcSvgRenderer, EscapesTextAndRefusesAnEmptyWindow) {
    AcDbDatabase db;
    addToModelSpace(db, new AcDbText(AcGePoint3d(10, 10, 0), L"a<b & \"c\"\x01 %%c50"));
    const auto doc = render(db);
    EXPECT_STREQ(byClass(doc, "text").first().node().text().get(), "a<b & \"c\" \u230050");
    AcSvgOptions flat;
    flat.window = AcDbExtents(AcGePoint3d(0, 0, 0), AcGePoint3d(0, 10, 0));
    std::string svg;
    std::wstring error;
    EXPECT_EQ(acdbRenderSvg(db, flat, svg, &error), Acad::eInvalidInput);
    EXPECT_NE(error.find(L"window"), std::wstring::npos);
}

TEST(AcSvgRenderer, WritesTheFileWholeOrNamesItInTheError) {
    AcDbDatabase db;
    addToModelSpace(db, lineOn(L"0"));
    const auto folder = std::filesystem::temp_directory_path() / ("svg_test_" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    const std::wstring file = (folder / "sheet.svg").wstring();
    ASSERT_EQ(acdbWriteSvgFile(db, knownWindow(), file.c_str()), Acad::eOk);
    pugi::xml_document doc;
    EXPECT_TRUE(doc.load_file((folder / "sheet.svg").c_str()));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1);  // no temporary left
    std::wstring error;
    const std::wstring missing = (folder / "no" / "sheet.svg").wstring();
    EXPECT_EQ(acdbWriteSvgFile(db, knownWindow(), missing.c_str(), &error), Acad::eFileAccessErr);
    EXPECT_NE(error.find(missing), std::wstring::npos);
    std::filesystem::remove_all(folder);
}
