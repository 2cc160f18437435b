#include "framework/topology/CEntity.h"

#include "framework/cad/CXimoCDraw.h"
#include "host/database/AcDbDatabase.h"

#include <gtest/gtest.h>

using XimoGis::Topology::CEntity;

namespace {

// An entity of a module, standing for a point it drew.
class CPointEntity : public CEntity {
public:
    explicit CPointEntity(AcDbObjectId id) : CEntity(XimoGis::etAssemblyScheme), m_id(id) {}
    AcDbObjectId GetId() const override { return m_id; }

private:
    AcDbObjectId m_id;
};

}  // namespace

TEST(CEntity, NewEntitiesHaveAGuidAndNeutralOperations) {
    CEntity entity;
    CEntity other;
    EXPECT_EQ(entity.GetGuid().size(), 38u);
    EXPECT_NE(entity.GetGuid(), other.GetGuid());
    EXPECT_EQ(entity.GetEntityType(), XimoGis::etUndefined);
    entity.SetGuid(L"{A&B}");
    entity.SetEntityType(XimoGis::etNode);
    EXPECT_EQ(entity.GetXML(), L"<entity guid=\"{A&amp;B}\" type=\"1\"/>");
    EXPECT_TRUE(entity.GetHandle().empty());
    EXPECT_EQ(entity.GetGeosGeometry(), nullptr);
    EXPECT_EQ(entity.MoveTo(AcGePoint3d(1, 2, 3)) + entity.Mark(1, nullptr) + entity.WriteDataAsEED(), 0);
}

TEST(CEntity, TheHandleIsTheDataHoldersInHexadecimal) {
    AcDbDatabase db;
    acdbHostApplicationServices()->setWorkingDatabase(&db);
    const AcDbObjectId point = XimoGis::CXimoCDraw::point(AcGePoint3d(0, 0, 0)).objectId();
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    CPointEntity entity(point);
    EXPECT_EQ(entity.GetEntityHolder(), point);
    wchar_t expected[16];
    std::swprintf(expected, 16, L"%X", static_cast<unsigned>(point.handle()));
    EXPECT_EQ(entity.GetHandle(), expected);
}
