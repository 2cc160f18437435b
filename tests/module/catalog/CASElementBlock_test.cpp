#include "module/catalog/CASElementBlock.h"

#include "module/catalog/CatalogTestSupport.h"

#include <gtest/gtest.h>

using namespace XimoGis::AssemblySchemes;

namespace {

// An item "Q 100" in "Bends", and a block folder.
class ElementBlockTest : public ::testing::Test {
protected:
    std::wstring Folder() const { return folder.Text() + L"/"; }
    // A drawing with the line provider's flange line in model space.
    void WriteBlock(const std::wstring& name) {
        AcDbDatabase drawing;
        acdbHostApplicationServices()->setWorkingDatabase(&drawing);
        AcArray<AcDbObjectId> ids;
        Testing::LineProvider().DrawAEProjection(AcGePoint3d::kOrigin, eViewTop, bend, nullptr, ids);
        acdbHostApplicationServices()->setWorkingDatabase(nullptr);
        ASSERT_EQ(drawing.dxfOut((Folder() + name).c_str()), Acad::eOk);
    }

    XimoGis::Testing::TempFolder folder;
    XimoGis::Data::CCatalog catalog{L"ASSEMBLYSCHEMES_CATALOG"};
    XimoGis::Data::CCatalogItem* bend =
        Testing::AddElement(catalog, Testing::AddGroup(catalog, nullptr, L"Bends"), L"Q 100", L"Q-100");
    AcDbDatabase drawing;
    AcDbObjectId block;
    std::wstring error;
};

}  // namespace

TEST_F(ElementBlockTest, TheItemsBlockPropertyWinsOverTheNamingRule) {
    EXPECT_EQ(CASElementBlock::FindFile(Folder(), eViewFront, bend, &error), L"");
    EXPECT_NE(error.find(L"Bends_Q_100_Q-100_4.dxf\" for the front view of catalog item \"Q 100\""),
              std::wstring::npos);
    folder.Write("Bends_Q_100_Q-100_4.dxf", "");
    EXPECT_EQ(CASElementBlock::FindFile(Folder(), eViewFront, bend), Folder() + L"Bends_Q_100_Q-100_4.dxf");
    bend->GetProperty(L"AS_BLOCK4")->SetValue(L"Bend.DXF");
    EXPECT_EQ(CASElementBlock::FindFile(Folder(), eViewFront, bend), L"");  // named but missing: no fallback
    folder.Write("Bend.DXF", "");
    EXPECT_EQ(CASElementBlock::FindFile(Folder(), eViewFront, bend), Folder() + L"Bend.DXF");
}

TEST_F(ElementBlockTest, TheBlockFileBecomesABlockDefinitionOnce) {
    WriteBlock(L"Bends_Q_100_Q-100_1.dxf");
    ASSERT_EQ(CASElementBlock::Insert(drawing, Folder(), eViewTop, bend, block, error), Acad::eOk) << error;
    EXPECT_EQ(drawing.blockId(L"Bends_Q_100_Q-100_1"), block);
    AcDbBlockTableRecord* record = nullptr;
    ASSERT_EQ(acdbOpenObject(record, block, AcDb::kForRead), Acad::eOk);
    const std::vector<AcDbObjectId> entities = record->entityIds();
    record->close();
    ASSERT_EQ(entities.size(), 1u);
    EXPECT_NE(XimoGis::CXimoCEntityPtr(entities[0], AcDb::kForRead)->xDataFor(L"AMS_PRIRUBNICA"), nullptr);

    folder.Write("Bends_Q_100_Q-100_1.dxf", "not a drawing");  // not read again: the definition is there
    AcDbObjectId again;
    EXPECT_EQ(CASElementBlock::Insert(drawing, Folder(), eViewTop, bend, again, error), Acad::eOk);
    EXPECT_EQ(again, block);
    EXPECT_EQ(CASElementBlock::Insert(drawing, Folder(), eViewLeft, bend, again, error), Acad::eNotApplicable);
    // A file that does not read leaves the drawing as it was.
    folder.Write("broken.dxf", "0\nSECTION\n2\nENTITIES\n0\nLINE\n10\nnot a number\n");
    EXPECT_NE(CASElementBlock::InsertDefinition(drawing, Folder() + L"broken.dxf", block, error), Acad::eOk);
    EXPECT_NE(error.find(L"broken.dxf"), std::wstring::npos) << error;
    EXPECT_TRUE(drawing.blockId(L"broken").isNull());
}

