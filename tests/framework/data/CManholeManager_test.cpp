#include "framework/data/CManholeManager.h"

#include "framework/manholescheme/CMSManager.h"
#include "framework/topology/CTopologyMultiStorage.h"
#include "framework/topology/NetworkFixture.h"
#include "host/database/AcDbDatabase.h"
#include "host/entities/AcDbPolyline.h"
#include "host/entities/AcDbText.h"

#include <algorithm>

using XimoGis::Data::CManholeManager;
using XimoGis::Data::mdrDrawn;
using XimoGis::Data::mdrFailed;
using XimoGis::Data::mdrNoManhole;
using XimoGis::ManholeScheme::CMSManager;
using XimoGis::Topology::CNode;
using XimoGis::Topology::CTopologyMultiStorage;

namespace {

class CManholeManagerTest : public XimoGis::Testing::NetworkFixture {
protected:
    void SetUp() override {
        NetworkFixture::SetUp();
        acdbHostApplicationServices()->setWorkingDatabase(&db);
        topology = CTopologyMultiStorage::Instance()->GetTopology(system);
        ASSERT_NE(topology, nullptr);
    }
    void TearDown() override {
        acdbHostApplicationServices()->setWorkingDatabase(nullptr);
        NetworkFixture::TearDown();
    }
    const CNode* Node(const wchar_t* name) const { return topology->GetNodeByName(name); }
    std::vector<std::wstring> Texts(const AcDbObjectIdArray& ids) const {
        std::vector<std::wstring> texts;
        for (int i = 0; i < ids.length(); ++i) {
            AcDbObjectPointer<AcDbText> text(ids[i], AcDb::kForRead);
            if (text) texts.push_back(text->textString());
        }
        return texts;
    }
    // The drawing's extents in drawing units.
    AcDbExtents Extents(const AcDbObjectIdArray& ids) const {
        AcDbExtents all;
        for (int i = 0; i < ids.length(); ++i) {
            AcDbObjectPointer<AcDbPolyline> outline(ids[i], AcDb::kForRead);
            AcDbExtents one;
            if (outline && outline->getGeomExtents(one) == Acad::eOk) all.addExt(one);
        }
        return all;
    }

    AcDbDatabase db;
    const XimoGis::Topology::CTopologyStorage* topology = nullptr;
};

bool Has(const std::vector<std::wstring>& texts, const std::wstring& text) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

}  // namespace

TEST_F(CManholeManagerTest, SideViewShowsTheShaftPipesAndLevelsAtTheScale) {
    auto front = CMSManager::Instance()->GetComponentById(CMSManager::kFrontViewId);
    ASSERT_TRUE(front);
    front->GetProperties()->GetProperty(L"MSMS_SCALE")->SetHiddenValue(0.05);  // 1:20 in millimetres
    AcDbObjectIdArray ids;
    ASSERT_EQ(CManholeManager::DrawFrontView(Node(L"M1"), front.get(), ids, AcGePoint3d(100, 200, 0)), mdrDrawn);
    const auto texts = Texts(ids);
    EXPECT_TRUE(Has(texts, L"Manhole side view 'M1'"));
    EXPECT_TRUE(Has(texts, L"+121.40"));  // cover level
    EXPECT_TRUE(Has(texts, L"+119.60"));  // floor: 1.8 m below
    EXPECT_TRUE(Has(texts, L"s2 DN150"));  // the inlet, in the section plane
    // Shaft 1.2 m inside, walls 0.15 m, bottom slab 0.1 m wider each side: 1.7 m, 85 units at 1:20.
    const AcDbExtents extents = Extents(ids);
    EXPECT_NEAR(extents.maxPoint().x - extents.minPoint().x, 1.7 * 50.0, 1e-6);
    EXPECT_NEAR(extents.maxPoint().y, 200.0, 1e-6);  // the cover lies at the base point
    EXPECT_NEAR(extents.minPoint().y, 200.0 - (1.8 + 0.2) * 50.0, 1e-6);
}

TEST_F(CManholeManagerTest, TopViewShowsEveryPipeWithItsLabel) {
    auto top = CMSManager::Instance()->GetComponentById(CMSManager::kTopViewId);
    AcDbObjectIdArray ids;
    ids.append(AcDbObjectId());  // what the caller had stays
    ASSERT_EQ(CManholeManager::DrawTopView(Node(L"M1"), top.get(), ids), mdrDrawn);
    EXPECT_TRUE(ids[0].isNull());
    const auto texts = Texts(ids);
    EXPECT_TRUE(Has(texts, L"s2 DN150"));
    EXPECT_TRUE(Has(texts, L"Manhole top view 'M1'"));
    EXPECT_EQ(texts.size(), 2u);
}

TEST_F(CManholeManagerTest, ANodeWithoutManholeDataDrawsNothing) {
    auto front = CMSManager::Instance()->GetComponentById(CMSManager::kFrontViewId);
    AcDbObjectIdArray ids;
    EXPECT_FALSE(CManholeManager::HasManhole(Node(L"J1")));
    EXPECT_EQ(CManholeManager::DrawFrontView(Node(L"J1"), front.get(), ids), mdrNoManhole);
    EXPECT_EQ(CManholeManager::DrawTopView(Node(L"J1"), front.get(), ids), mdrNoManhole);
    EXPECT_EQ(CManholeManager::DrawFrontView(nullptr, front.get(), ids), mdrFailed);
    EXPECT_EQ(CManholeManager::DrawFrontView(Node(L"M1"), nullptr, ids), mdrFailed);
    front->GetProperties()->GetProperty(L"MSMS_SCALE")->SetHiddenValue(0.0);
    EXPECT_EQ(CManholeManager::DrawFrontView(Node(L"M1"), front.get(), ids), mdrFailed);
    EXPECT_EQ(ids.length(), 0);
    AcDbBlockTableRecord* space = nullptr;
    ASSERT_EQ(acdbOpenObject(space, db.modelSpaceId(), AcDb::kForRead), Acad::eOk);
    EXPECT_TRUE(space->entityIds().empty());
    space->close();
}
