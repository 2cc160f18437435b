#include "host/database/AcDbDatabase.h"

#include <gtest/gtest.h>

#include "host/entities/AcDbBlockReference.h"
#include "host/entities/AcDbCircle.h"
#include "host/entities/AcDbLine.h"

namespace {
AcDbObjectId appendToModelSpace(AcDbDatabase& db, AcDbEntity* entity) {
    AcDbBlockTableRecord* ms = nullptr;
    EXPECT_EQ(acdbOpenObject(ms, db.modelSpaceId(), AcDb::kForWrite), Acad::eOk);
    AcDbObjectId id;
    EXPECT_EQ(ms->appendAcDbEntity(id, entity), Acad::eOk);
    entity->close();
    ms->close();
    return id;
}
}  // namespace

TEST(AcDbDatabase, DefaultDrawingHasTheStandardRecords) {
    AcDbDatabase db;
    EXPECT_FALSE(db.modelSpaceId().isNull());
    EXPECT_FALSE(db.blockId(ACDB_PAPER_SPACE).isNull());
    EXPECT_FALSE(db.layerZero().isNull());
    EXPECT_FALSE(db.continuousLinetype().isNull());
    EXPECT_FALSE(db.textStyleId(L"standard").isNull());  // names ignore case
    EXPECT_TRUE(db.isRegApp(L"ACAD"));
    EXPECT_EQ(db.insunits(), 4);

    AcDbDatabase empty(false);
    EXPECT_TRUE(empty.modelSpaceId().isNull());
    EXPECT_FALSE(empty.blockTableId().isNull());
}

TEST(AcDbDatabase, OpenModesFollowTheHostRules) {
    AcDbDatabase db;
    const AcDbObjectId id = appendToModelSpace(db, new AcDbLine({0, 0, 0}, {1, 0, 0}));
    EXPECT_NE(id.handle(), 0u);

    AcDbLine* reader1 = nullptr;
    AcDbLine* reader2 = nullptr;
    AcDbLine* writer = nullptr;
    ASSERT_EQ(acdbOpenObject(reader1, id, AcDb::kForRead), Acad::eOk);
    ASSERT_EQ(acdbOpenObject(reader2, id, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(reader1, reader2);
    EXPECT_EQ(acdbOpenObject(writer, id, AcDb::kForWrite), Acad::eWasOpenForRead);
    EXPECT_EQ(writer, nullptr);
    EXPECT_EQ(reader1->upgradeOpen(), Acad::eWasOpenForRead);  // another reader still holds it
    reader2->close();
    ASSERT_EQ(reader1->upgradeOpen(), Acad::eOk);
    EXPECT_TRUE(reader1->isWriteEnabled());
    EXPECT_EQ(acdbOpenObject(reader2, id, AcDb::kForRead), Acad::eWasOpenForWrite);
    ASSERT_EQ(reader1->downgradeOpen(), Acad::eOk);
    EXPECT_FALSE(reader1->isWriteEnabled());
    reader1->close();

    // The wrong kind closes again and fails.
    AcDbCircle* circle = nullptr;
    EXPECT_EQ(acdbOpenObject(circle, id, AcDb::kForWrite), Acad::eNotThatKindOfClass);
    ASSERT_EQ(acdbOpenObject(writer, id, AcDb::kForWrite), Acad::eOk);

    // Erased objects open only on request.
    ASSERT_EQ(writer->erase(), Acad::eOk);
    writer->close();
    EXPECT_TRUE(id.isErased());
    EXPECT_EQ(acdbOpenObject(writer, id, AcDb::kForRead), Acad::eWasErased);
    ASSERT_EQ(acdbOpenObject(writer, id, AcDb::kForWrite, true), Acad::eOk);
    EXPECT_EQ(writer->erase(false), Acad::eOk);
    writer->close();
    EXPECT_FALSE(id.isErased());

    EXPECT_EQ(acdbOpenObject(writer, AcDbObjectId::kNull, AcDb::kForRead), Acad::eNullObjectId);
    AcDbLine loose;
    EXPECT_EQ(loose.erase(), Acad::eNotInDatabase);
}

TEST(AcDbDatabase, SymbolTablesKeepOrderAndUniqueNames) {
    AcDbDatabase db;
    AcDbObjectId red, blue;
    ASSERT_EQ(db.addLayer(red, L"Red", 1, L"DASHDOT"), Acad::eOk);
    ASSERT_EQ(db.addLayer(blue, L"Blue", 5), Acad::eOk);
    AcDbObjectId again;
    ASSERT_EQ(db.addLayer(again, L"RED"), Acad::eOk);
    EXPECT_EQ(again, red);
    EXPECT_FALSE(db.linetypeId(L"DashDot").isNull());  // loaded with the layer

    AcDbLayerTable* layers = nullptr;
    ASSERT_EQ(db.getLayerTable(layers, AcDb::kForWrite), Acad::eOk);
    auto* duplicate = new AcDbLayerTableRecord;
    duplicate->setName(L"blue");
    EXPECT_EQ(layers->add(duplicate), Acad::eDuplicateRecordName);
    delete duplicate;

    std::vector<std::wstring> names;
    AcDbSymbolTableIterator* it = nullptr;
    layers->newIterator(it);
    for (; !it->done(); it->step()) {
        AcDbLayerTableRecord* record = nullptr;
        ASSERT_EQ(it->getRecord(record, AcDb::kForRead), Acad::eOk);
        names.push_back(record->name());
        record->close();
    }
    delete it;
    layers->close();
    EXPECT_EQ(names, (std::vector<std::wstring>{L"0", L"Red", L"Blue"}));

    // Renaming keeps the table's index in step.
    AcDbLayerTableRecord* record = nullptr;
    ASSERT_EQ(acdbOpenObject(record, blue, AcDb::kForWrite), Acad::eOk);
    EXPECT_EQ(record->setName(L"red"), Acad::eDuplicateRecordName);
    ASSERT_EQ(record->setName(L"Water"), Acad::eOk);
    record->close();
    EXPECT_EQ(db.layerId(L"WATER"), blue);
    EXPECT_TRUE(db.layerId(L"Blue").isNull());

    EXPECT_EQ(db.loadLineTypeFile(L"NO_SUCH_TYPE"), Acad::eKeyNotFound);
}

TEST(AcDbDatabase, ExtendedDataNeedsARegisteredApplication) {
    AcDbDatabase db;
    const AcDbObjectId id = appendToModelSpace(db, new AcDbLine({0, 0, 0}, {1, 0, 0}));
    AcDbLine* line = nullptr;
    ASSERT_EQ(acdbOpenObject(line, id, AcDb::kForWrite), Acad::eOk);

    resbuf* data = acutBuildList(AcDb::kDxfRegAppName, L"XIMO", AcDb::kDxfXdAsciiString, L"Čvor 7", AcDb::kDxfXdReal,
                                 2.5, AcDb::kDxfXdInteger16, 16, AcDb::kDxfXdInteger32, 70000, 0);
    EXPECT_EQ(line->setXData(data), Acad::eRegappIdNotFound);
    ASSERT_EQ(db.registerApplication(L"XIMO"), Acad::eOk);
    ASSERT_EQ(line->setXData(data), Acad::eOk);
    acutRelRb(data);

    resbuf* back = line->xData(L"ximo");
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(back->restype, AcDb::kDxfRegAppName);
    EXPECT_STREQ(back->rbnext->resval.rstring, L"Čvor 7");
    EXPECT_DOUBLE_EQ(back->rbnext->rbnext->resval.rreal, 2.5);
    EXPECT_EQ(back->rbnext->rbnext->rbnext->resval.rint, 16);
    EXPECT_EQ(back->rbnext->rbnext->rbnext->rbnext->resval.rlong, 70000);
    EXPECT_EQ(back->rbnext->rbnext->rbnext->rbnext->rbnext, nullptr);
    acutRelRb(back);

    // Replacing one application's data leaves the others; a bare name removes it.
    db.registerApplication(L"OTHER");
    line->setXData(AcDbXDataApp{L"OTHER", {AcDbXDataValue::int16(1)}});
    line->setXData(AcDbXDataApp{L"XIMO", {AcDbXDataValue::string(L"new")}});
    ASSERT_EQ(line->xDataList().size(), 2u);
    EXPECT_EQ(line->xDataList()[0].values.size(), 1u);
    resbuf* remove = acutBuildList(AcDb::kDxfRegAppName, L"XIMO", 0);
    line->setXData(remove);
    acutRelRb(remove);
    ASSERT_EQ(line->xDataList().size(), 1u);
    EXPECT_EQ(line->xDataList()[0].application, L"OTHER");
    EXPECT_EQ(line->xData(L"XIMO"), nullptr);

    resbuf* bad = acutBuildList(AcDb::kDxfXdAsciiString, L"no application first", 0);
    EXPECT_EQ(line->setXData(bad), Acad::eInvalidResBuf);
    acutRelRb(bad);
    line->close();
}

TEST(AcDbDatabase, InsertCopiesABlockWithWhatItUses) {
    AcDbDatabase source;
    AcDbObjectId layer;
    source.addLayer(layer, L"Flanges", 3, L"HIDDEN");
    source.registerApplication(L"AMS_PRIRUBNICA");

    // A nested block inside the source drawing.
    AcDbBlockTable* blocks = nullptr;
    source.getBlockTable(blocks, AcDb::kForWrite);
    auto* bolt = new AcDbBlockTableRecord;
    bolt->setName(L"BOLT");
    AcDbObjectId boltId;
    blocks->add(boltId, bolt);
    bolt->appendAcDbEntity(new AcDbCircle({0, 0, 0}, AcGeVector3d::kZAxis, 0.5));
    bolt->close();
    blocks->close();

    auto* flange = new AcDbLine({0, -5, 0}, {0, 5, 0});
    flange->setLayer(L"Flanges");
    flange->setXData(AcDbXDataApp{L"AMS_PRIRUBNICA", {AcDbXDataValue::int16(1)}});
    appendToModelSpace(source, flange);
    appendToModelSpace(source, new AcDbBlockReference({0, 3, 0}, boltId));

    AcDbDatabase target;
    AcDbObjectId inserted;
    ASSERT_EQ(target.insert(inserted, L"TEE_DN100", &source), Acad::eOk);
    EXPECT_EQ(target.insert(inserted, L"TEE_DN100", &source), Acad::eDuplicateRecordName);
    inserted = target.blockId(L"TEE_DN100");

    AcDbBlockTableRecord* block = nullptr;
    ASSERT_EQ(acdbOpenObject(block, inserted, AcDb::kForRead), Acad::eOk);
    ASSERT_EQ(block->entityIds().size(), 2u);
    AcDbLine* line = nullptr;
    ASSERT_EQ(acdbOpenObject(line, block->entityIds()[0], AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(line->layer(), L"Flanges");
    ASSERT_NE(line->xDataFor(L"AMS_PRIRUBNICA"), nullptr);
    line->close();
    AcDbBlockReference* nested = nullptr;
    ASSERT_EQ(acdbOpenObject(nested, block->entityIds()[1], AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(nested->blockTableRecord(), target.blockId(L"BOLT"));
    nested->close();
    block->close();

    EXPECT_FALSE(target.layerId(L"Flanges").isNull());
    EXPECT_FALSE(target.linetypeId(L"HIDDEN").isNull());
    EXPECT_TRUE(target.isRegApp(L"AMS_PRIRUBNICA"));
}

TEST(AcDbDatabase, HandlesAreKeptWhenGivenAndTheSeedMovesPast) {
    AcDbDatabase db(false);
    AcDbObjectId id;
    ASSERT_EQ(db.addAcDbObject(id, new AcDbLine, AcDbObjectId(), 0x400), Acad::eOk);
    EXPECT_EQ(id.handle(), 0x400u);
    EXPECT_EQ(db.idFromHandle(0x400), id);
    EXPECT_GT(db.handseed(), 0x400u);
    AcDbObjectId clash;
    ASSERT_EQ(db.addAcDbObject(clash, new AcDbLine, AcDbObjectId(), 0x400), Acad::eOk);
    EXPECT_NE(clash.handle(), 0x400u);  // a taken handle gets a fresh one
}
