#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/base/AcString.h"
#include "host/dxf/DxfDatabaseCompare.h"
#include "host/dxf/DxfTestDrawing.h"
#include "host/dxf/DxfTestFiles.h"
#include "host/entities/AcDbLine.h"
#include "host/entities/AcDbText.h"

namespace {
AcDbObjectId addToModelSpace(AcDbDatabase& db, AcDbEntity* entity) {
    AcDbBlockTableRecord* model = nullptr;
    acdbOpenObject(model, db.modelSpaceId(), AcDb::kForWrite);
    AcDbObjectId id;
    model->appendAcDbEntity(id, entity);
    entity->close();
    model->close();
    return id;
}
}  // namespace

TEST(AcDbDatabaseDxf, ASavedDrawingLoadsBackEqualEntityByEntity) {
    const std::wstring file = (dxfTestFolder() / "scheme.dxf").wstring();
    const auto original = makeDxfTestDrawing();
    std::wstring error;
    ASSERT_EQ(original->dxfOut(file.c_str(), &error), Acad::eOk) << acutWcharToUtf8(error);

    AcDbDatabase loaded;
    ASSERT_EQ(loaded.dxfIn(file.c_str(), &error), Acad::eOk) << acutWcharToUtf8(error);
    EXPECT_THAT(compareDatabases(*original, loaded), testing::IsEmpty());
    EXPECT_EQ(loaded.filename(), file);
    EXPECT_EQ(loaded.numObjects() + 1, original->numObjects()) << "all but the erased line";
}

TEST(AcDbDatabaseDxf, HandlesAreNotGivenAgainAfterLoading) {
    const std::wstring file = (dxfTestFolder() / "scheme.dxf").wstring();
    const auto original = makeDxfTestDrawing();
    ASSERT_EQ(original->dxfOut(file.c_str()), Acad::eOk);
    AcDbDatabase loaded;
    ASSERT_EQ(loaded.dxfIn(file.c_str()), Acad::eOk);
    // Not even the erased line's handle, which the file does not hold.
    EXPECT_GE(loaded.handseed(), original->handseed());
    const AcDbObjectId added = addToModelSpace(loaded, new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 0, 0)));
    EXPECT_GE(added.handle(), original->handseed());

    // The loaded drawing saves and loads again unchanged.
    ASSERT_EQ(loaded.dxfOut(file.c_str()), Acad::eOk);
    AcDbDatabase again;
    ASSERT_EQ(again.dxfIn(file.c_str()), Acad::eOk);
    EXPECT_THAT(compareDatabases(loaded, again), testing::IsEmpty());
    EXPECT_EQ(again.idFromHandle(added.handle()).isNull(), false);
}

TEST(AcDbDatabaseDxf, NamesOutsideAsciiComeBack) {
    const std::wstring file = (dxfTestFolder() / "names.dxf").wstring();
    AcDbDatabase db;
    AcDbObjectId layer;
    db.addLayer(layer, L"Čvorovi ĐŽ", 30);
    auto* text = new AcDbText(AcGePoint3d(0, 0, 0), L"Ø 100 — ključ");
    text->setLayer(L"Čvorovi ĐŽ");
    const AcDbObjectId id = addToModelSpace(db, text);
    ASSERT_EQ(db.dxfOut(file.c_str()), Acad::eOk);

    AcDbDatabase loaded;
    ASSERT_EQ(loaded.dxfIn(file.c_str()), Acad::eOk);
    EXPECT_FALSE(loaded.layerId(L"Čvorovi ĐŽ").isNull());
    EXPECT_THAT(compareDatabases(db, loaded), testing::IsEmpty());
    const auto* back = dynamic_cast<const AcDbText*>(AcDbDatabase::peekObject(loaded.idFromHandle(id.handle())));
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(back->textString(), L"Ø 100 — ključ");
}

TEST(AcDbDatabaseDxf, NullFileNamesAreRefused) {
    AcDbDatabase db;
    std::wstring error;
    EXPECT_EQ(db.dxfOut(nullptr, &error), Acad::eInvalidInput);
    EXPECT_FALSE(error.empty());
    EXPECT_EQ(db.dxfIn(nullptr, &error), Acad::eInvalidInput);
}
