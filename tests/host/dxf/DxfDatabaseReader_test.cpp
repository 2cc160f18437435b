#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "host/base/AcString.h"
#include "host/dxf/DxfTestDrawing.h"
#include "host/dxf/DxfTestFiles.h"
#include "host/entities/AcDbArc.h"
#include "host/entities/AcDbAttributeDefinition.h"
#include "host/entities/AcDbBlockReference.h"
#include "host/entities/AcDbCircle.h"
#include "host/entities/AcDbLine.h"
#include "host/entities/AcDbMText.h"
#include "host/entities/AcDbPolyline.h"
#include "host/entities/AcDbText.h"

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace {
// A minimal file as older programs write it: ENTITIES only, no handles.
std::string minimalFile(const std::string& entities, const std::string& header = "") {
    return "  0\nSECTION\n  2\nHEADER\n" + header + "  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n" + entities +
           "  0\nENDSEC\n  0\nEOF\n";
}

std::vector<const AcDbEntity*> modelSpace(const AcDbDatabase& db) {
    std::vector<const AcDbEntity*> out;
    const auto* model = static_cast<const AcDbBlockTableRecord*>(AcDbDatabase::peekObject(db.modelSpaceId()));
    for (const AcDbObjectId& id : model->entityIds())
        out.push_back(static_cast<const AcDbEntity*>(AcDbDatabase::peekObject(id)));
    return out;
}

// Loads bytes that must be refused: the error names the file and (when given) the line, the
// database keeps what it held and the file stays as it was.
std::string expectRefused(const std::string& bytes, int line = -1) {
    const fs::path file = dxfTestFolder() / "bad.dxf";
    writeBytes(file, bytes);
    AcDbDatabase db;
    AcDbObjectId kept;
    db.addLayer(kept, L"KEPT");
    const std::size_t objects = db.numObjects();
    std::wstring error;
    EXPECT_NE(db.dxfIn(file.wstring().c_str(), &error), Acad::eOk);
    const std::string message = acutWcharToUtf8(error);
    EXPECT_THAT(message, HasSubstr(file.string()));
    if (line > 0) {
        EXPECT_THAT(message, HasSubstr("line " + std::to_string(line) + ":"));
    }
    EXPECT_EQ(db.numObjects(), objects);
    EXPECT_FALSE(db.layerId(L"KEPT").isNull());
    EXPECT_TRUE(db.filename().empty());
    EXPECT_EQ(readBytes(file), bytes);
    return message;
}
}  // namespace

TEST(DxfDatabaseReader, TruncatedFilesAreRefusedWherEverTheyEnd) {
    const fs::path file = dxfTestFolder() / "whole.dxf";
    ASSERT_EQ(makeDxfTestDrawing()->dxfOut(file.wstring().c_str()), Acad::eOk);
    const std::string whole = readBytes(file);
    std::mt19937 random(7);
    for (int i = 0; i < 40; ++i) {
        // Cut points spread over the file, some inside a line.
        const std::size_t cut = whole.size() * static_cast<std::size_t>(i) / 40 + random() % 7;
        SCOPED_TRACE("cut at byte " + std::to_string(cut));
        const std::string message = expectRefused(whole.substr(0, cut));
        if (cut > 0) {
            EXPECT_THAT(message, HasSubstr("line "));
        }
    }
    // The cut just before EOF names the open part.
    EXPECT_THAT(expectRefused(whole.substr(0, whole.size() - 4)), HasSubstr("no value"));
    EXPECT_THAT(expectRefused(whole.substr(0, whole.rfind("  0\nENDSEC"))), HasSubstr("section OBJECTS"));
}

TEST(DxfDatabaseReader, BinaryAndGarbageFilesAreRefused) {
    EXPECT_THAT(expectRefused(std::string("AutoCAD Binary DXF\r\n\x1a\0\0\0\x02SECTION", 30), 1), HasSubstr("binary"));
    EXPECT_THAT(expectRefused(""), HasSubstr("empty"));
    EXPECT_THAT(expectRefused("Dear reader,\nthis is a letter.\n", 1), HasSubstr("expected a group code"));
    std::mt19937 random(11);
    for (int i = 0; i < 20; ++i) {
        std::string bytes(200 + i * 50, '\0');
        for (char& c : bytes) c = static_cast<char>(random() % 256);
        expectRefused(bytes);
    }
    // Text-like garbage with valid codes but nonsense structure.
    expectRefused("  0\nLINE\n 10\n1.0\n  0\nEOF\n", 1);
    expectRefused("  0\nSECTION\n  2\nENTITIES\n  0\nLINE\n 10\n\x01\x02\x03\n", 8);
}

TEST(DxfDatabaseReader, MalformedGroupsNameTheirLine) {
    const std::string line = "  0\nLINE\n  8\n0\n 10\n1.0\n 20\n2.0\n 11\n3.0\n 21\n4.0\n";
    // The object after the header starts at line 11 of a minimal file.
    EXPECT_THAT(expectRefused(minimalFile("  0\nLINE\n xy\n0\n"), 13), HasSubstr("expected a group code, found \" xy\""));
    EXPECT_THAT(expectRefused(minimalFile("  0\nLINE\n 10\n1.0.0\n"), 14), HasSubstr("\"1.0.0\" is not a number"));
    EXPECT_THAT(expectRefused(minimalFile("  0\nLINE\n 10\nnan\n"), 14), HasSubstr("not a number"));
    EXPECT_THAT(expectRefused(minimalFile("  0\nLINE\n 62\n70000\n"), 14), HasSubstr("out of range"));
    EXPECT_THAT(expectRefused(minimalFile("  0\nLINE\n 62\n1.5\n"), 14), HasSubstr("not an integer"));
    EXPECT_THAT(expectRefused(minimalFile("  0\nLINE\n  5\nXYZ\n"), 14), HasSubstr("not a handle"));
    EXPECT_THAT(expectRefused(minimalFile("  0\nLINE\n2000\nx\n"), 13), HasSubstr("unknown group code 2000"));
    EXPECT_THAT(expectRefused(minimalFile(line + "1071\n3000000000\n"), 24), HasSubstr("out of range"));
    EXPECT_THAT(expectRefused(minimalFile("  0\nLWPOLYLINE\n 90\n3\n 10\n0\n 20\n0\n"), 13),
                HasSubstr("declares 3 vertices but has 1"));
    EXPECT_THAT(expectRefused(minimalFile("  0\nLWPOLYLINE\n 90\n2147483647\n"), 13), HasSubstr("vertices"));
    // Structure.
    EXPECT_THAT(expectRefused("  0\nSECTION\n  2\nENTITIES\n  0\nSECTION\n  2\nBLOCKS\n  0\nEOF\n", 5),
                HasSubstr("section ENTITIES opened at line 1 is not closed"));
    EXPECT_THAT(expectRefused("  0\nSECTION\n  2\nTABLES\n  0\nENDTAB\n  0\nENDSEC\n  0\nEOF\n", 5), HasSubstr("ENDTAB"));
    EXPECT_THAT(expectRefused("  0\nSECTION\n  2\nBLOCKS\n  0\nLINE\n  0\nENDSEC\n  0\nEOF\n", 5),
                HasSubstr("LINE outside a block"));
    EXPECT_THAT(expectRefused("  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n"), HasSubstr("without EOF"));
    EXPECT_THAT(expectRefused("  0\nSECTION\n  0\nENDSEC\n  0\nEOF\n", 1), HasSubstr("without a name"));
}

TEST(DxfDatabaseReader, BlocksMustBeUsable) {
    const auto blocks = [](const std::string& body) {
        return "  0\nSECTION\n  2\nBLOCKS\n" + body + "  0\nENDSEC\n  0\nEOF\n";
    };
    const std::string insertA = "  0\nINSERT\n  2\nA\n 10\n0\n 20\n0\n";
    const std::string insertB = "  0\nINSERT\n  2\nB\n 10\n0\n 20\n0\n";
    EXPECT_THAT(expectRefused(blocks("  0\nBLOCK\n  2\nA\n" + insertA + "  0\nENDBLK\n")),
                HasSubstr("\"A\" inserts itself"));
    EXPECT_THAT(expectRefused(blocks("  0\nBLOCK\n  2\nA\n" + insertB + "  0\nENDBLK\n  0\nBLOCK\n  2\nB\n" + insertA +
                                     "  0\nENDBLK\n")),
                HasSubstr("inserts itself"));
    EXPECT_THAT(expectRefused(blocks("  0\nBLOCK\n 70\n0\n  0\nENDBLK\n"), 5), HasSubstr("a block without a name"));
}

TEST(DxfDatabaseReader, AttributesBelongOnlyToTheReferenceRightBeforeThem) {
    // The second reference names no block; dxflib passes over it, and its attribute with it.
    const std::string attribute = "  0\nATTRIB\n  8\n0\n 10\n0\n 20\n0\n 40\n1\n  1\nv\n  2\nTAG\n 70\n0\n";
    const std::string file = minimalFile("  0\nINSERT\n  2\nB\n 66\n1\n 10\n0\n 20\n0\n" + attribute + "  0\nSEQEND\n" +
                                         "  0\nINSERT\n 66\n1\n 10\n0\n 20\n0\n" + attribute + "  0\nSEQEND\n");
    const fs::path path = dxfTestFolder() / "attributes.dxf";
    writeBytes(path, file);
    AcDbDatabase db;
    ASSERT_EQ(db.dxfIn(path.wstring().c_str()), Acad::eOk);
    const auto entities = modelSpace(db);
    ASSERT_EQ(entities.size(), 1u);
    EXPECT_EQ(static_cast<const AcDbBlockReference*>(entities[0])->attributeIds().size(), 1u);
}

TEST(DxfDatabaseReader, DamagedFilesNeverCrashTheReader) {
    const fs::path folder = dxfTestFolder();
    ASSERT_EQ(makeDxfTestDrawing()->dxfOut((folder / "whole.dxf").wstring().c_str()), Acad::eOk);
    const std::string whole = readBytes(folder / "whole.dxf");
    const fs::path file = folder / "damaged.dxf";
    std::mt19937 random(3);
    const char replacements[] = "0123456789-.eE \n\r\t\\U+ABxyz\x80\xC4";
    int refused = 0;
    for (int i = 0; i < 300; ++i) {
        std::string bytes = whole;
        for (int k = 0, n = 1 + static_cast<int>(random() % 4); k < n; ++k) {
            const std::size_t at = random() % bytes.size();
            if (random() % 3 == 0) bytes.erase(at, random() % 40);
            else bytes[at] = replacements[random() % (sizeof(replacements) - 1)];
        }
        writeBytes(file, bytes);
        AcDbDatabase db;
        std::wstring error;
        if (db.dxfIn(file.wstring().c_str(), &error) != Acad::eOk) {
            ++refused;
            EXPECT_THAT(acutWcharToUtf8(error), HasSubstr("damaged.dxf"));
            EXPECT_FALSE(db.modelSpaceId().isNull());
        }
    }
    EXPECT_GT(refused, 100);
}

TEST(DxfDatabaseReader, FilesOfOtherProgramsLoadAndUnknownEntitiesAreSkipped) {
    // Code page text, UTF-8 text, escapes; entities without handles; kinds the host lacks; a
    // pointer holding a name, as some writers put there.
    const std::string entities =
        "  0\nLINE\n  8\nPIPES\n 62\n3\n347\nStandard\n 10\n1\n 20\n2\n 30\n0\n 11\n4\n 21\n6\n 31\n0\n"
        "1001\nXIMO\n1000\n\xC8vor \\U+0416\n1071\n-5\n"
        "  0\nSPLINE\n  8\n0\n 70\n8\n 71\n3\n 72\n8\n 73\n4\n 40\n0\n 40\n0\n"
        "  0\nTEXT\n  8\n0\n 10\n0\n 20\n0\n 40\n2.5\n  1\n\xC5\xA0" "aht\n 50\n90\n"
        "  0\nHATCH\n  8\n0\n 91\n1\n 92\n2\n 72\n1\n 93\n999999\n"
        "  0\nCIRCLE\n  8\n0\n 10\n0\n 20\n0\n 30\n1\n 40\n5\n210\n0\n220\n0\n230\n-1\n"
        "  0\nARC\n  8\n0\n 10\n2\n 20\n0\n 30\n0\n 40\n1\n 50\n0\n 51\n90\n230\n-1\n";
    const fs::path file = dxfTestFolder() / "other.dxf";
    writeBytes(file, minimalFile(entities, "  9\n$DWGCODEPAGE\n  3\nANSI_1250\n  9\n$INSUNITS\n 70\n6\n"));
    AcDbDatabase db;
    std::wstring error;
    ASSERT_EQ(db.dxfIn(file.wstring().c_str(), &error), Acad::eOk) << acutWcharToUtf8(error);
    EXPECT_EQ(db.insunits(), 6);
    const auto entitiesRead = modelSpace(db);
    ASSERT_EQ(entitiesRead.size(), 4u);

    const auto* line = dynamic_cast<const AcDbLine*>(entitiesRead[0]);
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->layer(), L"PIPES");
    EXPECT_FALSE(db.layerId(L"PIPES").isNull());
    EXPECT_EQ(line->colorIndex(), 3);
    EXPECT_TRUE(line->endPoint().isEqualTo(AcGePoint3d(4, 6, 0)));
    EXPECT_TRUE(db.isRegApp(L"XIMO"));
    const AcDbXDataApp* xdata = line->xDataFor(L"XIMO");
    ASSERT_NE(xdata, nullptr);
    EXPECT_EQ(xdata->values[0], AcDbXDataValue::string(L"Čvor Ж"));
    EXPECT_EQ(xdata->values[1], AcDbXDataValue::int32(-5));

    const auto* text = dynamic_cast<const AcDbText*>(entitiesRead[1]);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->textString(), L"Šaht");
    EXPECT_NEAR(text->rotation(), M_PI / 2, 1e-12);

    // Circles and arcs seen from below, as a mirrored drawing holds them.
    const auto* circle = dynamic_cast<const AcDbCircle*>(entitiesRead[2]);
    ASSERT_NE(circle, nullptr);
    EXPECT_TRUE(circle->center().isEqualTo(AcGePoint3d(0, 0, -1)));
    EXPECT_TRUE(circle->normal().isEqualTo(AcGeVector3d(0, 0, -1)));
    const auto* arc = dynamic_cast<const AcDbArc*>(entitiesRead[3]);
    ASSERT_NE(arc, nullptr);
    EXPECT_TRUE(arc->center().isEqualTo(AcGePoint3d(-2, 0, 0)));
    EXPECT_TRUE(arc->startPoint().isEqualTo(AcGePoint3d(-2, 1, 0)));
    EXPECT_TRUE(arc->endPoint().isEqualTo(AcGePoint3d(-3, 0, 0)));
    // What every drawing has is there.
    EXPECT_FALSE(db.layerZero().isNull());
    EXPECT_FALSE(db.continuousLinetype().isNull());
    EXPECT_FALSE(db.textStyleId(L"Standard").isNull());
    EXPECT_FALSE(db.blockId(ACDB_PAPER_SPACE).isNull());
}

class DxfDatabaseReaderEzdxf : public testing::TestWithParam<const char*> {};

TEST_P(DxfDatabaseReaderEzdxf, ReadsWhatAnotherLibraryWrote) {
    if (std::system("/usr/bin/python3 -c 'import ezdxf' 2>/dev/null") != 0)
        GTEST_SKIP() << "ezdxf is not installed for /usr/bin/python3 (scripts/setup.sh installs python3-ezdxf)";
    const fs::path file = dxfTestFolder() / "ezdxf.dxf";
    const std::string make = std::string("/usr/bin/python3 ") + XIMO_SOURCE_DIR "/tests/host/dxf/dxf_make_sample.py '" +
                             file.string() + "' " + GetParam();
    ASSERT_EQ(std::system(make.c_str()), 0);
    AcDbDatabase db;
    std::wstring error;
    ASSERT_EQ(db.dxfIn(file.wstring().c_str(), &error), Acad::eOk) << acutWcharToUtf8(error);

    const auto entities = modelSpace(db);
    std::vector<std::wstring> kinds;
    for (const AcDbEntity* e : entities) kinds.emplace_back(e->isA());
    EXPECT_THAT(kinds, testing::ElementsAre(L"AcDbLine", L"AcDbPolyline", L"AcDbCircle", L"AcDbArc", L"AcDbText",
                                            L"AcDbMText", L"AcDbPoint", L"AcDbBlockReference"));
    ASSERT_EQ(entities.size(), 8u);

    const auto& line = static_cast<const AcDbLine&>(*entities[0]);
    EXPECT_EQ(line.layer(), L"PIPES");
    EXPECT_EQ(line.colorIndex(), 1);
    const AcDbXDataApp* xdata = line.xDataFor(L"XIMO");
    ASSERT_NE(xdata, nullptr);
    EXPECT_THAT(xdata->values, testing::ElementsAre(AcDbXDataValue::string(L"Čvor š-ž ĐĆ €"), AcDbXDataValue::real(2.5),
                                                    AcDbXDataValue::int16(7), AcDbXDataValue::int32(100000),
                                                    AcDbXDataValue::point(AcGePoint3d(1, 2, 3))));
    const auto* layer = dynamic_cast<const AcDbLayerTableRecord*>(AcDbDatabase::peekObject(db.layerId(L"PIPES")));
    ASSERT_NE(layer, nullptr);
    EXPECT_EQ(layer->colorIndex(), 5);
    EXPECT_EQ(layer->linetypeObjectId(), db.linetypeId(L"DASHED"));

    const auto& polyline = static_cast<const AcDbPolyline&>(*entities[1]);
    EXPECT_EQ(polyline.numVerts(), 3u);
    EXPECT_TRUE(polyline.isClosed());
    double start = 0, end = 0, bulge = 0;
    polyline.getWidthsAt(0, start, end);
    polyline.getBulgeAt(0, bulge);
    EXPECT_DOUBLE_EQ(start, 0.5);
    EXPECT_DOUBLE_EQ(end, 0.5);
    EXPECT_DOUBLE_EQ(bulge, 0.25);

    const auto& arc = static_cast<const AcDbArc&>(*entities[3]);
    EXPECT_NEAR(arc.startAngle(), M_PI / 6, 1e-12);
    EXPECT_NEAR(arc.endAngle(), 2 * M_PI / 3, 1e-12);

    const auto& text = static_cast<const AcDbText&>(*entities[4]);
    EXPECT_EQ(text.textString(), L"Šaht Č-12");
    EXPECT_EQ(text.textStyleName(), L"ISO");
    EXPECT_EQ(text.horizontalMode(), AcDb::kTextCenter);
    EXPECT_EQ(text.verticalMode(), AcDb::kTextVertMid);
    EXPECT_TRUE(text.alignmentPoint().isEqualTo(AcGePoint3d(1, 1, 0)));
    EXPECT_NEAR(text.rotation(), M_PI / 4, 1e-12);

    const auto& mtext = static_cast<const AcDbMText&>(*entities[5]);
    EXPECT_EQ(mtext.contents(), L"Opis\\Pčvora");
    EXPECT_EQ(mtext.attachment(), AcDbMText::kMiddleCenter);
    EXPECT_DOUBLE_EQ(mtext.width(), 40.0);

    const auto& reference = static_cast<const AcDbBlockReference&>(*entities[7]);
    EXPECT_EQ(reference.blockTableRecord(), db.blockId(L"VALVE"));
    EXPECT_NEAR(reference.rotation(), M_PI / 2, 1e-12);
    EXPECT_DOUBLE_EQ(reference.scaleFactors().sx, 2.0);
    ASSERT_EQ(reference.attributeIds().size(), 1u);
    const auto* attribute = dynamic_cast<const AcDbAttribute*>(AcDbDatabase::peekObject(reference.attributeIds()[0]));
    ASSERT_NE(attribute, nullptr);
    EXPECT_EQ(attribute->tag(), L"POS");
    EXPECT_EQ(attribute->textString(), L"12");
    const auto* valve = dynamic_cast<const AcDbBlockTableRecord*>(AcDbDatabase::peekObject(db.blockId(L"VALVE")));
    ASSERT_NE(valve, nullptr);
    EXPECT_TRUE(valve->origin().isEqualTo(AcGePoint3d(5, 5, 0)));
    ASSERT_EQ(valve->entityIds().size(), 2u);
    const auto* definition = dynamic_cast<const AcDbAttributeDefinition*>(AcDbDatabase::peekObject(valve->entityIds()[1]));
    ASSERT_NE(definition, nullptr);
    EXPECT_EQ(definition->prompt(), L"Pozicija");
    EXPECT_DOUBLE_EQ(definition->height(), 2.0);
}

INSTANTIATE_TEST_SUITE_P(Versions, DxfDatabaseReaderEzdxf, testing::Values("R2000", "R2018"));
