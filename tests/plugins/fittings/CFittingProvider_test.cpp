#include "fittings/CFittingProvider.h"

#include "fittings/CPipeProvider.h"
#include "plugins/fittings/FittingsTestSupport.h"

#include "module/definitions/CASDefinition.h"

#include <gtest/gtest.h>

using namespace XimoGis::AssemblySchemes;
using namespace XimoGis::AssemblySchemes::Fittings;

namespace {

AcDbExtents Extents(const AcArray<AcDbObjectId>& ids) {
    AcDbExtents extents;
    for (const AcDbObjectId& id : ids) {
        AcDbExtents part;
        if (XimoGis::CXimoCEntityPtr(id, AcDb::kForRead)->getGeomExtents(part) == Acad::eOk) extents.addExt(part);
    }
    return extents;
}

// The pipe piece FF 100x500 PN16 of the demo catalog.
class PipeProviderTest : public ::testing::Test {
protected:
    boost::shared_ptr<XimoGis::Data::CCatalog> catalog = Testing::ReadDemoCatalog();
    XimoGis::Data::CCatalogItem* pipe = catalog->GetItem(L"{E3591C61-32BC-58FD-8582-98EBB619F013}");
    CPipeProvider provider;
    Testing::WorkingDrawing drawing;
    AcArray<AcDbObjectId> ids;
    std::wstring problem;
};

}  // namespace

TEST_F(PipeProviderTest, DrawsAtTheDefinitionsScaleFromTheInsertionPoint) {
    ASSERT_EQ(provider.DrawAEProjection({1000, 50, 0}, eViewTop, pipe, nullptr, ids), 1);  // 1:1
    EXPECT_TRUE(Extents(ids).minPoint().isEqualTo({1000, -60, 0}));  // flanges of 220
    EXPECT_TRUE(Extents(ids).maxPoint().isEqualTo({1500, 160, 0}));
    CASDefinition definition;
    definition.GetScale()->SetScaleX(0.05);
    AcArray<AcDbObjectId> scaled;
    ASSERT_EQ(provider.DrawAEProjection({0, 0, 0}, eViewFront, pipe, &definition, scaled), 1);
    EXPECT_TRUE(Extents(scaled).maxPoint().isEqualTo({25, 5.5, 0}));
    definition.GetScale()->SetScaleX(0.0);
    EXPECT_EQ(provider.DrawAEProjection({0, 0, 0}, eViewFront, pipe, &definition, scaled), 0);
    EXPECT_EQ(drawing.ModelSpaceCount(), std::size_t(ids.length() + scaled.length()));
}

TEST_F(PipeProviderTest, ItemsWithoutTheDataItNeedsAreNotDrawn) {
    EXPECT_EQ(provider.CheckCatalogItem(pipe, problem), 1);
    pipe->GetProperty(L"AS_LENGTH")->SetValue(30.0);
    EXPECT_EQ(provider.CheckCatalogItem(pipe, problem), 0);
    EXPECT_EQ(problem, L"AS_LENGTH is not longer than the two flanges");
    EXPECT_EQ(provider.DrawAEProjection({0, 0, 0}, eViewTop, pipe, nullptr, ids), 0);
    EXPECT_EQ(provider.DrawAEProjection({0, 0, 0}, eViewTop, nullptr, nullptr, ids), 0);
    EXPECT_EQ(provider.IsProjectionSupported(static_cast<enmViewDirection>(9)), 0);
    EXPECT_EQ(drawing.ModelSpaceCount(), 0u);
}
