#include "framework/demo/CDemoTitleBlocks.h"

#include "framework/TempFolder.h"
#include "host/database/AcDbDatabase.h"
#include "host/database/AcDbExtents.h"
#include "host/database/acdbOpenObject.h"
#include "host/entities/AcDbAttributeDefinition.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <vector>

using XimoGis::Demo::CDemoTitleBlocks;
using XimoGis::Testing::TempFolder;

namespace {

// The attribute definitions (tag -> default text and prompt) and the extents of a drawing file.
struct Loaded {
    std::map<std::wstring, std::pair<std::wstring, std::wstring>> definitions;
    AcDbExtents extents;
};

Loaded Load(const std::filesystem::path& file) {
    Loaded loaded;
    AcDbDatabase database(false);
    std::wstring error;
    EXPECT_EQ(database.dxfIn(file.wstring().c_str(), &error), Acad::eOk) << error;
    AcDbObjectPointer<AcDbBlockTableRecord> space(database.modelSpaceId(), AcDb::kForRead);
    for (const AcDbObjectId& id : space ? space->entityIds() : std::vector<AcDbObjectId>()) {
        AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForRead);
        AcDbExtents extents;
        if (entity->getGeomExtents(extents) == Acad::eOk) loaded.extents.addExt(extents);
        if (const auto* definition = dynamic_cast<const AcDbAttributeDefinition*>(entity.object()))
            loaded.definitions[definition->tag()] = {definition->textString(), definition->prompt()};
    }
    return loaded;
}

std::set<std::wstring> Tags(const Loaded& loaded) {
    std::set<std::wstring> tags;
    for (const auto& entry : loaded.definitions) tags.insert(entry.first);
    return tags;
}

TEST(DemoTitleBlocks, FilesLoadBackWithTheirAttributeDefinitions) {
    TempFolder folder;
    std::wstring error;
    const auto symbols = folder.Path() / "install" / "symbol";
    ASSERT_TRUE(CDemoTitleBlocks::Write(symbols.wstring(), error)) << error;
    ASSERT_EQ(CDemoTitleBlocks::GetFileNames(), (std::vector<std::wstring>{L"IT_A4.dxf", L"IT_A3.dxf"}));

    std::set<std::wstring> tags = {L"PROJECT", L"SHEET",    L"TITLE", L"NODE_NAME",
                                   L"SYSTEM",  L"DRAWN_BY", L"DATE",  L"SCALE"};
    const Loaded a4 = Load(symbols / "IT_A4.dxf");
    EXPECT_EQ(Tags(a4), tags);
    EXPECT_EQ(a4.definitions.at(L"SCALE"), std::make_pair(std::wstring(L"1:20"), std::wstring(L"Scale")));
    // Lower left corner at the origin, 180 mm wide, one 10 mm row per line of fields.
    EXPECT_NEAR(a4.extents.minPoint().x, 0.0, 1e-9);
    EXPECT_NEAR(a4.extents.minPoint().y, 0.0, 1e-9);
    EXPECT_NEAR(a4.extents.maxPoint().x, 180.0, 1e-9);
    EXPECT_NEAR(a4.extents.maxPoint().y, 40.0, 1e-9);

    tags.insert({L"COMPANY", L"DRAWING_NO"});
    const Loaded a3 = Load(symbols / "IT_A3.dxf");
    EXPECT_EQ(Tags(a3), tags);
    EXPECT_NEAR(a3.extents.maxPoint().y, 50.0, 1e-9);

    AcDbDatabase database;
    EXPECT_FALSE(CDemoTitleBlocks::Draw(L"IT_A0.dxf", database));
}

TEST(DemoTitleBlocks, AFolderThatCannotBeMadeIsReported) {
    TempFolder folder;
    folder.Write("taken", "a file where the folder should go");
    std::wstring error;
    EXPECT_FALSE(CDemoTitleBlocks::Write((folder.Path() / "taken" / "symbol").wstring(), error));
    EXPECT_NE(error.find(L"taken"), std::wstring::npos) << error;
}

}  // namespace
