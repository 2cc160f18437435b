#include "framework/data/CPropertiesEx.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

using namespace XimoGis::Data;

namespace {

boost::shared_ptr<CPropertyEx> Make(const wchar_t* tag, enmPropertyValueType type, const CPropertyValue& value,
                                    const wchar_t* rule = L"") {
    auto p = boost::make_shared<CPropertyEx>(tag, type);
    p->SetDefaultAndValue(value);
    p->SetDependency(rule);
    return p;
}

// The text component's source list, which switches two groups, and its scale switch.
void AddTextSource(CPropertiesEx& set) {
    set.AddCategory(464, 464, 464);
    auto source = Make(L"LAD_SOURCE", enmPropertyValueType::ListIndex, CPropertyValue(),
                       L"0:1:LD_SCALEFACTOR#LD_MODIFYDATA#LAD_DATAID$0:0:LD_MANUALENTRY$"
                       L"1:0:LD_SCALEFACTOR#LD_MODIFYDATA#LAD_DATAID$1:1:LD_MANUALENTRY");
    source->AddListChoice(L"Vrijednost čvora", 0);
    source->AddListChoice(L"Ručni unos", 1);
    source->SetDefaultAndValue(L"Vrijednost čvora", 0);
    set.AddProperty(464, source);
    set.AddProperty(464, Make(L"LAD_DATAID", enmPropertyValueType::Text, L""));
    set.AddProperty(464, Make(L"LD_MODIFYDATA", enmPropertyValueType::Integer, 1, L"1:1:LD_SCALEFACTOR$0:0:LD_SCALEFACTOR"));
    set.AddProperty(464, Make(L"LD_SCALEFACTOR", enmPropertyValueType::Double, 1.0));
    set.AddProperty(464, Make(L"LD_MANUALENTRY", enmPropertyValueType::Text, L""));
    // A rule naming tags the set does not hold changes nothing.
    set.AddProperty(464, Make(L"FRAME", enmPropertyValueType::Integer, 0, L"0:0:LT_LEFT#LC_LEFT$1:1:LT_LEFT#LC_LEFT"));
}

std::wstring Enabled(const CPropertiesEx& set) {
    std::wstring states;
    for (const wchar_t* tag : {L"LAD_DATAID", L"LD_MODIFYDATA", L"LD_SCALEFACTOR", L"LD_MANUALENTRY"})
        states += set.GetProperty(tag)->IsEnabled() ? L'1' : L'0';
    return states;
}

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
    // Tags are unique across categories; unknown categories, empty tags and null are refused.
    EXPECT_FALSE(set.AddProperty(0, Make(L"ASPW", enmPropertyValueType::Double, 1.0)));
    EXPECT_FALSE(set.AddProperty(5, Make(L"NEW", enmPropertyValueType::Double, 1.0)));
    EXPECT_FALSE(set.AddProperty(0, Make(L"", enmPropertyValueType::Double, 1.0)));
    EXPECT_FALSE(set.AddProperty(0, nullptr));
    EXPECT_TRUE(set.RemoveProperty(L"X"));
    EXPECT_EQ(set.GetPropertyCount(), 4u);
}

TEST(CPropertiesEx, TypedGettersFallBackToTheirDefaults) {
    CPropertiesEx set;
    AddTextSource(set);
    set.AddProperty(464, Make(L"EMPTY", enmPropertyValueType::Text, CPropertyValue()));
    set.AddProperty(464, Make(L"BIG", enmPropertyValueType::Long, 5000000000L));
    set.GetProperty(L"LD_SCALEFACTOR")->SetHiddenValue(0.001);
    EXPECT_EQ(set.GetDblProperty(L"LD_SCALEFACTOR", 0.0, 1), 0.001);
    EXPECT_EQ(set.GetDblProperty(L"LD_SCALEFACTOR", 0.0, 0), 1.0);
    EXPECT_EQ(set.GetDblProperty(L"OFFSET_LEFT", 1.0, 1), 1.0);
    EXPECT_EQ(set.GetIntProperty(L"LC_LEFT", 7, 1), 7);
    EXPECT_EQ(set.GetLngProperty(L"BIG", 0L, 1), 5000000000L);
    EXPECT_EQ(set.GetIntProperty(L"BIG", 4, 1), 4);  // too large for an int
    EXPECT_EQ(set.GetStrProperty(L"LT_RIGHT", L"Continuous", 1), L"Continuous");
    EXPECT_EQ(set.GetStrProperty(L"EMPTY", L"dflt", 1), L"dflt");
    EXPECT_EQ(set.GetIntProperty(L"LAD_SOURCE", -1, 1), 0);
    EXPECT_EQ(set.GetIntProperty(L"LAD_SOURCE", -1, 0), -1);  // the shown text is not a number
    EXPECT_EQ(set.GetStrProperty(L"LAD_SOURCE", L"", 0), L"Vrijednost čvora");
}

TEST(CPropertiesEx, ValuesEnableAndDisableByTheirRules) {
    CPropertiesEx set;
    AddTextSource(set);
    set.ApplyAllDependencies();  // source 0 enables its group, then LD_MODIFYDATA 1 keeps the scale on
    EXPECT_EQ(Enabled(set), L"1110");
    ASSERT_TRUE(set.SetPropertyValue(L"LD_MODIFYDATA", 0));
    EXPECT_EQ(Enabled(set), L"1100");
    set.SetPropertyValue(L"LAD_SOURCE", L"Ručni unos");  // second entry, hidden value 1
    EXPECT_EQ(Enabled(set), L"0001");
    set.SetPropertyValue(L"LAD_SOURCE", L"Vrijednost čvora");
    EXPECT_EQ(Enabled(set), L"1110");
    EXPECT_FALSE(set.SetPropertyValue(L"NO_SUCH_TAG", 1));
    EXPECT_EQ(set.GetPropertyCount(), 6u);
}

TEST(CPropertiesEx, DeepCopiesAreEqualAndIndependent) {
    CPropertiesEx original;
    AddTextSource(original);
    CPropertiesEx copy;
    copy.AddCategory(99, 0, 0);
    original.MakeDeepCopy(copy);
    EXPECT_TRUE(copy == original);
    EXPECT_FALSE(copy.GetCategory(99));
    copy.SetPropertyValue(L"LD_SCALEFACTOR", 2.0);
    copy.GetCategory(464)->SetNameMsg(1);
    copy.AddProperty(464, Make(L"LD_PREFIX", enmPropertyValueType::Text, L""));
    EXPECT_EQ(original.GetDblProperty(L"LD_SCALEFACTOR", 0.0, 1), 1.0);
    EXPECT_EQ(original.GetCategory(464)->GetNameMsg(), 464);
    EXPECT_FALSE(original.GetProperty(L"LD_PREFIX"));
    EXPECT_FALSE(copy == original);
}
