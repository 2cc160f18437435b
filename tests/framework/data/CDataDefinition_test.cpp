#include "framework/data/CDataDefinition.h"

#include <gtest/gtest.h>

using XimoGis::Data::CDataBox;
using XimoGis::Data::CDataDefinition;
using XimoGis::Data::enmDataTarget;

TEST(CDataDefinition, IdsNamesAndColumnNames) {
    const CDataDefinition depth(enmDataTarget::Node, L"manhole_depth", CDataBox::Type::Double, L"", L"m");
    EXPECT_EQ(depth.GetId(), L"nodes.manhole_depth");
    EXPECT_EQ(depth.GetName(), L"manhole_depth");  // no name given: the column shows
    EXPECT_TRUE(depth.IsNumeric());
    EXPECT_EQ(CDataDefinition(enmDataTarget::Section, L"dn", CDataBox::Type::Null).GetValueType(),
              CDataBox::Type::Text);
    EXPECT_EQ(CDataDefinition::MakeId(enmDataTarget::Section, L"dn"), L"sections.dn");
    for (const wchar_t* good : {L"a", L"_x", L"cover_level2"}) EXPECT_TRUE(CDataDefinition::IsValidColumnName(good));
    for (const wchar_t* bad : {L"", L"1a", L"a-b", L"a b", L"dubina_š", L"x\""})
        EXPECT_FALSE(CDataDefinition::IsValidColumnName(bad)) << bad;
    EXPECT_FALSE(CDataDefinition::IsValidColumnName(std::wstring(64, L'a')));
}

TEST(CDataDefinition, ValuesAreBroughtToTheColumnsType) {
    const CDataDefinition count(enmDataTarget::Node, L"count", CDataBox::Type::Integer);
    const CDataDefinition level(enmDataTarget::Node, L"level", CDataBox::Type::Double);
    const CDataDefinition note(enmDataTarget::Node, L"note", CDataBox::Type::Text);
    CDataBox value(4.0);
    EXPECT_TRUE(count.Coerce(value));
    EXPECT_EQ(value, CDataBox(4));
    value = CDataBox(4.5);
    EXPECT_FALSE(count.Coerce(value));
    EXPECT_EQ(value, CDataBox(4.5));
    value = CDataBox(L"4");
    EXPECT_FALSE(count.Coerce(value));  // text is not a number of a numeric column
    value = CDataBox(3);
    EXPECT_TRUE(level.Coerce(value));
    EXPECT_EQ(value, CDataBox(3.0));
    value = CDataBox(2.5);
    EXPECT_TRUE(note.Coerce(value));
    EXPECT_EQ(value, CDataBox(L"2.5"));
    value = CDataBox();
    EXPECT_TRUE(count.Coerce(value));
    EXPECT_TRUE(value.IsNull());
}
