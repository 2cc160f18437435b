#include "framework/data/CPropertiesEx.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

using namespace XimoGis::Data;

namespace {

boost::shared_ptr<CPropertyEx> Make(const wchar_t* tag, enmPropertyValueType type, const CPropertyValue& value) {
    auto p = boost::make_shared<CPropertyEx>(tag, type);
    p->SetDefaultAndValue(value);
    return p;
}

// The text component's source switch with its two groups, and the scale switch.
void AddTextSource(CPropertiesEx& set) {
    set.AddCategory(464, 464, 464);
    auto source = boost::make_shared<CPropertyEx>(L"LAD_SOURCE", enmPropertyValueType::ListIndex, eEditorList);
    source->AddListChoice(L"Vrijednost čvora", 0);
    source->AddListChoice(L"Ručni unos", 1);
    source->SetDefaultAndValue(L"Vrijednost čvora", 0);
    source->SetDependency(
        L"0:1:LD_SCALEFACTOR#LD_MODIFYDATA#LAD_DATAID$0:0:LD_MANUALENTRY$1:0:LD_SCALEFACTOR#LD_MODIFYDATA#LAD_DATAID$"
        L"1:1:LD_MANUALENTRY");
    set.AddProperty(464, source);
    set.AddProperty(464, Make(L"LAD_DATAID", enmPropertyValueType::Text, L""));
    auto modify = Make(L"LD_MODIFYDATA", enmPropertyValueType::Integer, 1);
    modify->SetDependency(L"1:1:LD_SCALEFACTOR$0:0:LD_SCALEFACTOR");
    set.AddProperty(464, modify);
    set.AddProperty(464, Make(L"LD_SCALEFACTOR", enmPropertyValueType::Double, 1.0));
    set.AddProperty(464, Make(L"LD_MANUALENTRY", enmPropertyValueType::Text, L""));
}

bool Enabled(const CPropertiesEx& set, const wchar_t* tag) { return set.GetProperty(tag)->IsEnabled(); }

}  // namespace

TEST(CPropertiesEx, PropertiesTakeTheNextOrderOfTheirCategory) {
    CPropertiesEx set;
    ASSERT_TRUE(set.AddCategory(1, 4712, 4712));
    ASSERT_TRUE(set.AddCategory(0, 1098, 1098));
    EXPECT_FALSE(set.AddCategory(1, 1, 1));
    EXPECT_EQ(set.GetCategories().front()->GetOrder(), 0);
    EXPECT_EQ(set.AddProperty(1, Make(L"ASPW", enmPropertyValueType::Double, 210.0))->GetOrder(), 1);
    EXPECT_EQ(set.AddProperty(1, Make(L"ASPH", enmPropertyValueType::Double, 297.0))->GetOrder(), 2);
    EXPECT_EQ(set.AddProperty(0, Make(L"X", enmPropertyValueType::Integer, 1))->GetOrder(), 1);
    EXPECT_EQ(set.InsertProperty(0, Make(L"Y", enmPropertyValueType::Integer, 1), 10)->GetOrder(), 10);
    EXPECT_EQ(set.AddProperty(0, Make(L"Z", enmPropertyValueType::Integer, 1))->GetOrder(), 11);
    // Tags are unique across categories; unknown categories and empty tags are refused.
    EXPECT_FALSE(set.AddProperty(0, Make(L"ASPW", enmPropertyValueType::Double, 1.0)));
    EXPECT_FALSE(set.AddProperty(5, Make(L"NEW", enmPropertyValueType::Double, 1.0)));
    EXPECT_FALSE(set.AddProperty(0, Make(L"", enmPropertyValueType::Double, 1.0)));
    EXPECT_FALSE(set.AddProperty(0, nullptr));
    EXPECT_EQ(set.GetPropertyCount(), 5u);
    EXPECT_TRUE(set.RemoveProperty(L"X"));
    EXPECT_FALSE(set.GetProperty(L"X"));
    EXPECT_EQ(set.AddProperty(0, Make(L"X", enmPropertyValueType::Integer, 1))->GetOrder(), 12);
}

TEST(CPropertiesEx, TypedGettersFallBackToTheirDefaults) {
    CPropertiesEx set;
    set.AddCategory(0, 0, 0);
    set.AddProperty(0, Make(L"OFFSET_LEFT", enmPropertyValueType::Double, 5.0));
    set.AddProperty(0, Make(L"LT_LEFT", enmPropertyValueType::Text, L"Continuous"));
    set.AddProperty(0, Make(L"EMPTY", enmPropertyValueType::Text, CPropertyValue()));
    set.AddProperty(0, Make(L"BIG", enmPropertyValueType::Long, 5000000000L));
    EXPECT_EQ(set.GetDblProperty(L"OFFSET_LEFT", 1.0, 1), 5.0);
    EXPECT_EQ(set.GetDblProperty(L"OFFSET_RIGHT", 1.0, 1), 1.0);
    EXPECT_EQ(set.GetIntProperty(L"LC_LEFT", 7, 1), 7);
    EXPECT_EQ(set.GetLngProperty(L"MISSING", -3L, 1), -3L);
    EXPECT_EQ(set.GetStrProperty(L"LT_RIGHT", L"Continuous", 1), L"Continuous");
    EXPECT_EQ(set.GetStrProperty(L"EMPTY", L"dflt", 1), L"dflt");
    EXPECT_EQ(set.GetIntProperty(L"LT_LEFT", 9, 1), 9);  // text that is not a number
    EXPECT_EQ(set.GetIntProperty(L"OFFSET_LEFT", 9, 1), 5);
    EXPECT_EQ(set.GetLngProperty(L"BIG", 0L, 1), 5000000000L);
    EXPECT_EQ(set.GetIntProperty(L"BIG", 4, 1), 4);  // too large for an int
}

TEST(CPropertiesEx, FlagSelectsShownOrHiddenValue) {
    CPropertiesEx set;
    AddTextSource(set);
    set.GetProperty(L"LD_SCALEFACTOR")->SetHiddenValue(0.001);
    EXPECT_EQ(set.GetDblProperty(L"LD_SCALEFACTOR", 0.0, 1), 0.001);
    EXPECT_EQ(set.GetDblProperty(L"LD_SCALEFACTOR", 0.0, 0), 1.0);
    EXPECT_EQ(set.GetIntProperty(L"LAD_SOURCE", -1, 1), 0);
    EXPECT_EQ(set.GetStrProperty(L"LAD_SOURCE", L"", 0), L"Vrijednost čvora");
    EXPECT_EQ(set.GetIntProperty(L"LAD_SOURCE", -1, 0), -1);
}

TEST(CPropertiesEx, CheckBoxRuleDisablesAtZeroAndEnablesAtOne) {
    CPropertiesEx set;
    set.AddCategory(0, 1098, 1098);
    auto symm = Make(L"AS_ELEM_DRAW_SYMM", enmPropertyValueType::Integer, 1);
    symm->SetDependency(
        L"0:0:AS_ELEM_SYMM_COLOR#AS_ELEM_SYMM_LINETYPE#AS_ELEM_SYMM_EXTEND$1:1:AS_ELEM_SYMM_COLOR#AS_ELEM_SYMM_"
        L"LINETYPE#AS_ELEM_SYMM_EXTEND");
    set.AddProperty(0, symm);
    for (const wchar_t* tag : {L"AS_ELEM_SYMM_COLOR", L"AS_ELEM_SYMM_LINETYPE", L"AS_ELEM_SYMM_EXTEND"})
        set.AddProperty(0, Make(tag, enmPropertyValueType::Integer, 0));
    set.ApplyAllDependencies();
    EXPECT_TRUE(Enabled(set, L"AS_ELEM_SYMM_EXTEND"));
    ASSERT_TRUE(set.SetPropertyValue(L"AS_ELEM_DRAW_SYMM", 0));
    for (const wchar_t* tag : {L"AS_ELEM_SYMM_COLOR", L"AS_ELEM_SYMM_LINETYPE", L"AS_ELEM_SYMM_EXTEND"})
        EXPECT_FALSE(Enabled(set, tag)) << tag;
    EXPECT_TRUE(Enabled(set, L"AS_ELEM_DRAW_SYMM"));
    set.SetPropertyValue(L"AS_ELEM_DRAW_SYMM", 1);
    EXPECT_TRUE(Enabled(set, L"AS_ELEM_SYMM_COLOR"));
    EXPECT_FALSE(set.SetPropertyValue(L"NO_SUCH_TAG", 1));
}

TEST(CPropertiesEx, SourceListSwitchesBetweenTwoGroups) {
    CPropertiesEx set;
    AddTextSource(set);
    set.ApplyDependencies(L"LAD_SOURCE");
    EXPECT_TRUE(Enabled(set, L"LAD_DATAID"));
    EXPECT_TRUE(Enabled(set, L"LD_MODIFYDATA"));
    EXPECT_TRUE(Enabled(set, L"LD_SCALEFACTOR"));
    EXPECT_FALSE(Enabled(set, L"LD_MANUALENTRY"));
    set.SetPropertyValue(L"LAD_SOURCE", L"Ručni unos");  // the list's second entry, hidden value 1
    EXPECT_FALSE(Enabled(set, L"LAD_DATAID"));
    EXPECT_FALSE(Enabled(set, L"LD_MODIFYDATA"));
    EXPECT_FALSE(Enabled(set, L"LD_SCALEFACTOR"));
    EXPECT_TRUE(Enabled(set, L"LD_MANUALENTRY"));
}

TEST(CPropertiesEx, RulesNamingAbsentTagsChangeNothing) {
    CPropertiesEx set;
    set.AddCategory(6839, 6839, 6839);
    auto inner = Make(L"INNER_LINES", enmPropertyValueType::Integer, 0);
    inner->SetDependency(L"0:0:LT_LEFT#LC_LEFT$1:1:LT_LEFT#LC_LEFT");
    set.AddProperty(6839, inner);
    set.AddProperty(6839, Make(L"INNER_LINES_LT", enmPropertyValueType::Text, L"Continuous"));
    set.ApplyAllDependencies();
    EXPECT_TRUE(Enabled(set, L"INNER_LINES_LT"));
    EXPECT_EQ(set.GetPropertyCount(), 2u);
}

TEST(CPropertiesEx, DeepCopiesAreEqualAndIndependent) {
    CPropertiesEx original;
    AddTextSource(original);
    CPropertiesEx copy;
    copy.AddCategory(99, 0, 0);
    original.MakeDeepCopy(copy);
    EXPECT_TRUE(copy == original);
    EXPECT_FALSE(copy.GetCategory(99));
    EXPECT_NE(copy.GetProperty(L"LD_SCALEFACTOR"), original.GetProperty(L"LD_SCALEFACTOR"));
    copy.SetPropertyValue(L"LD_SCALEFACTOR", 2.0);
    copy.GetCategory(464)->SetNameMsg(1);
    copy.AddProperty(464, Make(L"LD_PREFIX", enmPropertyValueType::Text, L""));
    EXPECT_EQ(original.GetDblProperty(L"LD_SCALEFACTOR", 0.0, 1), 1.0);
    EXPECT_EQ(original.GetCategory(464)->GetNameMsg(), 464);
    EXPECT_FALSE(original.GetProperty(L"LD_PREFIX"));
    EXPECT_FALSE(copy == original);
    original.MakeDeepCopy(original);
    EXPECT_EQ(original.GetPropertyCount(), 5u);
}
