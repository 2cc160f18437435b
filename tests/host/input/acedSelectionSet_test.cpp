#include "host/input/acedSelectionSet.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "host/input/InputTestDrawing.h"
#include "host/input/acdbAdsName.h"

namespace {
void nameOf(AcDbObjectId id, ads_name name) {
    ads_name n;
    ASSERT_EQ(acdbGetAdsName(n, id), Acad::eOk);
    ads_name_set(n, name);
}
}  // namespace

TEST(AcedSelectionSet, AddLengthNameMemberDeleteAndFree) {
    AcDbDatabase db;
    const AcDbObjectId a = addTestLine(db), b = addTestLine(db);
    ads_name na, nb;
    nameOf(a, na);
    nameOf(b, nb);
    const int openBefore = acedSSOpenCount();

    ads_name ss;
    ASSERT_EQ(acedSSAdd(na, nullptr, ss), RTNORM);
    EXPECT_EQ(acedSSOpenCount(), openBefore + 1);
    ads_name same;
    ASSERT_EQ(acedSSAdd(nb, ss, same), RTNORM);
    EXPECT_TRUE(ads_name_equal(ss, same));
    ASSERT_EQ(acedSSAdd(na, ss, same), RTNORM);  // already in: not added twice
    Adesk::Int32 length = 0;
    ASSERT_EQ(acedSSLength(ss, &length), RTNORM);
    EXPECT_EQ(length, 2);

    ads_name member;
    AcDbObjectId id;
    ASSERT_EQ(acedSSName(ss, 1, member), RTNORM);
    ASSERT_EQ(acdbGetObjectId(id, member), Acad::eOk);
    EXPECT_EQ(id, b);
    EXPECT_EQ(acedSSName(ss, 2, member), RTERROR);
    EXPECT_EQ(acedSSName(ss, -1, member), RTERROR);
    EXPECT_EQ(acedSSMemb(na, ss), RTNORM);

    ASSERT_EQ(acedSSDel(na, ss), RTNORM);
    EXPECT_EQ(acedSSMemb(na, ss), RTERROR);
    EXPECT_EQ(acedSSDel(na, ss), RTERROR);
    ASSERT_EQ(acedSSLength(ss, &length), RTNORM);
    EXPECT_EQ(length, 1);

    ASSERT_EQ(acedSSFree(ss), RTNORM);
    EXPECT_EQ(acedSSOpenCount(), openBefore);
    EXPECT_EQ(acedSSLength(ss, &length), RTERROR);
    EXPECT_EQ(acedSSFree(ss), RTERROR);
    EXPECT_EQ(acedSSAdd(na, ss, same), RTERROR);
}

TEST(AcedSelectionSet, EmptySetsBadNamesAndTheLimitOfOpenSets) {
    AcDbDatabase db;
    ads_name entity;
    nameOf(addTestLine(db), entity);
    ads_name empty;
    ASSERT_EQ(acedSSAdd(nullptr, nullptr, empty), RTNORM);
    Adesk::Int32 length = -1;
    ASSERT_EQ(acedSSLength(empty, &length), RTNORM);
    EXPECT_EQ(length, 0);
    // A set name is not an entity name, nor the other way round.
    ads_name result;
    EXPECT_EQ(acedSSAdd(empty, nullptr, result), RTERROR);
    EXPECT_EQ(acedSSLength(entity, &length), RTERROR);

    std::vector<std::array<std::int64_t, 2>> sets;
    ads_name ss;
    while (acedSSAdd(entity, nullptr, ss) == RTNORM) sets.push_back({ss[0], ss[1]});
    EXPECT_EQ(acedSSOpenCount(), kAcEdMaxSelectionSets);
    for (const auto& s : sets) EXPECT_EQ(acedSSFree(s.data()), RTNORM);
    EXPECT_EQ(acedSSFree(empty), RTNORM);
    EXPECT_EQ(acedSSAdd(entity, nullptr, ss), RTNORM);
    acedSSFree(ss);
}
