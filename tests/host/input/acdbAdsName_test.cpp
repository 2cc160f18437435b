#include "host/input/acdbAdsName.h"

#include <gtest/gtest.h>

#include "host/input/InputTestDrawing.h"

TEST(AcdbAdsName, EntityNamesAndIdsConvertBothWays) {
    AcDbDatabase db;
    const AcDbObjectId id = addTestLine(db);
    ads_name name;
    ASSERT_EQ(acdbGetAdsName(name, id), Acad::eOk);
    AcDbObjectId back;
    ASSERT_EQ(acdbGetObjectId(back, name), Acad::eOk);
    EXPECT_EQ(back, id);
    EXPECT_EQ(acdbGetAdsName(name, AcDbObjectId()), Acad::eNullObjectId);
    EXPECT_TRUE(ads_name_nil(name));
    EXPECT_EQ(acdbGetObjectId(back, name), Acad::eNullObjectId);
    EXPECT_TRUE(back.isNull());
    // A selection-set name names no object.
    const ads_name set = {1, kAcEdSelectionSetTag};
    EXPECT_EQ(acdbGetObjectId(back, set), Acad::eInvalidInput);
}
