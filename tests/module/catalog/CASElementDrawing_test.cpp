#include "module/catalog/CASElementDrawing.h"

#include "module/catalog/CASElementBlockWriter.h"
#include "module/catalog/CatalogTestSupport.h"
#include "module/definitions/CASDefinition.h"
#include "module/manager/CASManager.h"

#include "host/entities/AcDbBlockReference.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

using namespace XimoGis::AssemblySchemes;

// The provider of the item's element type draws the top view; the front view has a block file.
TEST(CASElementDrawing, TheProviderDrawsItsViewsAndBlockFilesTheOthersAtTheDefinitionsScale) {
    XimoGis::Testing::TempFolder folder;
    const std::wstring blocks = folder.Text() + L"/";
    XimoGis::Data::CCatalog catalog(L"ASSEMBLYSCHEMES_CATALOG");
    auto* item = Testing::AddElement(catalog, nullptr, L"Line");
    item->GetProperty(L"AS_ELEMENTTYPE")->SetValue(L"TEST_LINE");
    struct AnyView : Testing::LineProvider {
        int IsProjectionSupported(enmViewDirection) const override { return 1; }
    } anyView;
    std::wstring error;
    ASSERT_EQ(CASElementBlockWriter::Write(blocks, eViewFront, item, anyView, error), L"_Line_4") << error;
    const auto provider = boost::make_shared<Testing::LineProvider>();
    CASManager::Instance()->RegisterAssemblyElement(provider);
    AcDbDatabase drawing;
    acdbHostApplicationServices()->setWorkingDatabase(&drawing);

    EXPECT_EQ(CASElementDrawing::Find(eViewTop, item, blocks).provider, provider);
    AcArray<AcDbObjectId> ids;
    ASSERT_EQ(CASElementDrawing::Draw({5, 5, 0}, eViewTop, item, nullptr, blocks, ids, error), 1) << error;
    EXPECT_STREQ(XimoGis::CXimoCEntityPtr(ids[0], AcDb::kForRead)->isA(), L"AcDbLine");

    EXPECT_EQ(CASElementDrawing::Find(eViewFront, item, blocks).blockFile, blocks + L"_Line_4.dxf");
    CASDefinition definition;  // 1:10
    ASSERT_EQ(CASElementDrawing::Draw({5, 5, 0}, eViewFront, item, &definition, blocks, ids, error), 1) << error;
    ASSERT_EQ(ids.length(), 2);
    XimoGis::CXimoCEntityPtr entity(ids[1], AcDb::kForRead);
    auto* reference = dynamic_cast<AcDbBlockReference*>(entity.get());
    ASSERT_NE(reference, nullptr);
    EXPECT_EQ(reference->blockTableRecord(), drawing.blockId(L"_Line_4"));
    EXPECT_EQ(reference->scaleFactors(), AcGeScale3d(0.1));
    EXPECT_EQ(reference->position(), AcGePoint3d(5, 5, 0));
    entity.close();

    EXPECT_EQ(CASElementDrawing::Draw({0, 0, 0}, eViewLeft, item, nullptr, blocks, ids, error), 0);
    EXPECT_NE(error.find(L"_Line_5.dxf"), std::wstring::npos) << error;
    EXPECT_EQ(CASElementDrawing::Draw({0, 0, 0}, eViewTop, nullptr, nullptr, blocks, ids, error), 0);
    EXPECT_EQ(ids.length(), 2);
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    CASManager::Instance()->GetAssemblyElementTypeRegistry()->erase(L"TEST_LINE");
}
