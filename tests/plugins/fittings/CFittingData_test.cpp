#include "fittings/CFittingData.h"

#include "plugins/fittings/FittingsTestSupport.h"

#include <gtest/gtest.h>

using namespace XimoGis::AssemblySchemes::Fittings;

TEST(CFittingData, TheOutletIsTheNumberAfterTheDnWhenThePressureFollows) {
    EXPECT_EQ(CFittingData::ReadOutletDiameter(L"T-100-080-16", 100), 80);
    EXPECT_EQ(CFittingData::ReadOutletDiameter(L"T 100/80 PN16", 100), 80);
    EXPECT_EQ(CFittingData::ReadOutletDiameter(L"T-100-16", 100), 0);       // only the pressure
    EXPECT_EQ(CFittingData::ReadOutletDiameter(L"FF-080-0500-16", 80), 0);  // a length, larger
    EXPECT_EQ(CFittingData::ReadOutletDiameter(L"T-150-100-16", 100), 0);   // the DN is not there
}

TEST(CFittingData, NeedsAPositiveDnAndTakesPressure16WhenNoneIsGiven) {
    const auto catalog = Testing::ReadDemoCatalog();
    ASSERT_TRUE(catalog);
    auto* tee = catalog->GetItem(L"{2761AEBD-F37E-5918-9F42-755B282BA026}");
    CFittingData data;
    std::wstring problem;
    ASSERT_TRUE(CFittingData::Read(tee, data, problem));
    EXPECT_TRUE(data.dn == 100 && data.length == 360 && data.angle == 90 && data.outletDn == 80);
    tee->GetProperty(L"AS_NOMINALPRESSURE")->SetValue(XimoGis::Data::CPropertyValue());
    ASSERT_TRUE(CFittingData::Read(tee, data, problem));
    EXPECT_EQ(data.pn, 16);
    tee->GetProperty(L"AS_NOMINALDIAMETER")->SetValue(L"-100");
    EXPECT_FALSE(CFittingData::Read(tee, data, problem));
    EXPECT_EQ(problem, L"AS_NOMINALDIAMETER is not a positive number");
    EXPECT_FALSE(CFittingData::Read(nullptr, data, problem));
}
