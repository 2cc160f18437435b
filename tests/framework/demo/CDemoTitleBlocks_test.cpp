#include "framework/demo/CDemoTitleBlocks.h"

#include "framework/TempFolder.h"
#include "host/database/AcDbDatabase.h"
#include "host/database/AcDbExtents.h"
#include "host/database/acdbOpenObject.h"
#include "host/entities/AcDbAttributeDefinition.h"

#include <gtest/gtest.h>

#include <set>

using XimoGis::Demo::CDemoTitleBlocks;
using XimoGis::Testing::TempFolder;

namespace {

struct Loaded {
    std::set<std::wstring> tags;
    std::set<std::wstring> labels;
    AcDbExtents extents;
};

Loaded Load(const std::filesystem::path& file) {
    Loaded loaded;
    AcDbDatabase database(false);
    std::wstring error;
    EXPECT_EQ(database.dxfIn(file.wstring().c_str(), &error), Acad::eOk) << error;
    AcDbObjectPointer<AcDbBlockTableRecord> space(database.modelSpaceId(), AcDb::kForRead);
    if (!space) return loaded;
    for (const AcDbObjectId& id : space->entityIds()) {
        AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForRead);
        AcDbExtents extents;
        if (entity->getGeomExtents(extents) == Acad::eOk) loaded.extents.addExt(extents);
        if (const auto* definition = dynamic_cast<const AcDbAttributeDefinition*>(entity.object()))
            loaded.tags.insert(definition->tag());
        else if (const auto* text = dynamic_cast<const AcDbText*>(entity.object()))
            loaded.labels.insert(text->textString());
    }
    return loaded;
}

TEST(DemoTitleBlocks, FilesLoadBackWithTheirAttributeDefinitions) {
    TempFolder folder;
    std::wstring error;
    ASSERT_TRUE(CDemoTitleBlocks::Write((folder.Path() / "install" / "symbol").wstring(), error)) << error;
    ASSERT_EQ(CDemoTitleBlocks::GetFileNames(), (std::vector<std::wstring>{L"IT_A4.dxf", L"IT_A3.dxf"}));

    const std::set<std::wstring> a4Tags = {L"PROJECT", L"SHEET",  L"TITLE", L"NODE_NAME",
                                           L"SYSTEM",  L"DRAWN_BY", L"DATE", L"SCALE"};
    const Loaded a4 = Load(folder.Path() / "install" / "symbol" / "IT_A4.dxf");
    EXPECT_EQ(a4.tags, a4Tags);
    EXPECT_TRUE(a4.labels.count(L"Drawn by"));
    // Lower left corner at the origin, 180 mm wide, one 10 mm row per line of fields.
    EXPECT_NEAR(a4.extents.minPoint().x, 0.0, 1e-9);
    EXPECT_NEAR(a4.extents.minPoint().y, 0.0, 1e-9);
    EXPECT_NEAR(a4.extents.maxPoint().x, 180.0, 1e-9);
    EXPECT_NEAR(a4.extents.maxPoint().y, 40.0, 1e-9);

    std::set<std::wstring> a3Tags = a4Tags;
    a3Tags.insert({L"COMPANY", L"DRAWING_NO"});
    const Loaded a3 = Load(folder.Path() / "install" / "symbol" / "IT_A3.dxf");
    EXPECT_EQ(a3.tags, a3Tags);
    EXPECT_NEAR(a3.extents.maxPoint().y, 50.0, 1e-9);
}

TEST(DemoTitleBlocks, DefaultTextsAndPromptsComeWithTheDefinitions) {
    AcDbDatabase database;
    ASSERT_TRUE(CDemoTitleBlocks::Draw(L"IT_A4.dxf", database));
    EXPECT_FALSE(CDemoTitleBlocks::Draw(L"IT_A0.dxf", database));
    AcDbObjectPointer<AcDbBlockTableRecord> space(database.modelSpaceId(), AcDb::kForRead);
    int checked = 0;
    for (const AcDbObjectId& id : space->entityIds()) {
        AcDbObjectPointer<AcDbAttributeDefinition> definition(id, AcDb::kForRead);
        if (!definition || definition->tag() != L"SCALE") continue;
        EXPECT_EQ(definition->textString(), L"1:20");
        EXPECT_EQ(definition->prompt(), L"Scale");
        ++checked;
    }
    EXPECT_EQ(checked, 1);
}

TEST(DemoTitleBlocks, AFolderThatCannotBeMadeIsReported) {
    TempFolder folder;
    folder.Write("taken", "a file where the folder should go");
    std::wstring error;
    EXPECT_FALSE(CDemoTitleBlocks::Write((folder.Path() / "taken" / "symbol").wstring(), error));
    EXPECT_NE(error.find(L"taken"), std::wstring::npos) << error;
}

}  // namespace
