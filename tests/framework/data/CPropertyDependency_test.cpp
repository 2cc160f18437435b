#include "framework/data/CPropertyDependency.h"

#include <gtest/gtest.h>

using XimoGis::Data::CPropertyDependency;
using States = std::map<std::wstring, bool>;

namespace {

CPropertyDependency Parsed(const wchar_t* text) {
    CPropertyDependency rule;
    EXPECT_TRUE(CPropertyDependency::Parse(text, rule)) << text;
    return rule;
}

}  // namespace

TEST(CPropertyDependency, SwitchFlagDisablesAtZeroAndEnablesAtOne) {
    const auto rule = Parsed(L"0:0:LT_LEFT#LC_LEFT$1:1:LT_LEFT#LC_LEFT");
    EXPECT_EQ(rule.Evaluate(0), (States{{L"LT_LEFT", false}, {L"LC_LEFT", false}}));
    EXPECT_EQ(rule.Evaluate(1), (States{{L"LT_LEFT", true}, {L"LC_LEFT", true}}));
    EXPECT_TRUE(rule.Evaluate(2).empty());
    // Clause order need not follow the values; for a tag named twice the later clause wins.
    EXPECT_EQ(Parsed(L"1:1:LD_SCALEFACTOR$0:0:LD_SCALEFACTOR").Evaluate(0), (States{{L"LD_SCALEFACTOR", false}}));
    EXPECT_EQ(Parsed(L"1:1:A#B$1:0:B").Evaluate(1), (States{{L"A", true}, {L"B", false}}));
}

TEST(CPropertyDependency, TwoGroupRuleSwitchesGroups) {
    const auto rule = Parsed(L"0:1:LD_SCALEFACTOR#LAD_DATAID$0:0:LD_MANUALENTRY$1:0:LD_SCALEFACTOR#LAD_DATAID$"
                             L"1:1:LD_MANUALENTRY");
    EXPECT_EQ(rule.Evaluate(0), (States{{L"LD_SCALEFACTOR", true}, {L"LAD_DATAID", true}, {L"LD_MANUALENTRY", false}}));
    EXPECT_EQ(rule.Evaluate(1), (States{{L"LD_SCALEFACTOR", false}, {L"LAD_DATAID", false}, {L"LD_MANUALENTRY", true}}));
}

TEST(CPropertyDependency, MalformedRulesAreRefusedWithAReason) {
    const auto kept = Parsed(L"1:1:KEEP");
    for (const wchar_t* bad : {L"1:1", L"1:1:A:B", L"x:1:A", L"1:2:A", L"1:1:", L"1:1:A##B", L"1:1:A$"}) {
        CPropertyDependency rule = kept;
        std::wstring error;
        EXPECT_FALSE(CPropertyDependency::Parse(bad, rule, &error)) << bad;
        EXPECT_NE(error.find(L"dependency clause"), std::wstring::npos) << bad;
        EXPECT_EQ(rule.Evaluate(1), (States{{L"KEEP", true}}));
    }
}
