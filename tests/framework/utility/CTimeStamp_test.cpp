#include "framework/utility/CTimeStamp.h"

#include <gtest/gtest.h>

#include <cwctype>

using XimoGis::Utility::CTimeStamp;

TEST(CTimeStamp, LocalTimeWithMillisecondsAndReplaceableClock) {
    const std::wstring now = CTimeStamp::Now();
    ASSERT_EQ(now.size(), 23u);
    const std::wstring shape = L"0000-00-00 00:00:00.000";
    for (std::size_t i = 0; i < now.size(); ++i) {
        if (shape[i] == L'0')
            EXPECT_TRUE(std::iswdigit(static_cast<wint_t>(now[i]))) << i;
        else
            EXPECT_EQ(now[i], shape[i]) << i;
    }
    CTimeStamp::SetClock([] { return std::wstring(L"fixed"); });
    EXPECT_EQ(CTimeStamp::Now(), L"fixed");
    CTimeStamp::SetClock(nullptr);
    EXPECT_EQ(CTimeStamp::Now().size(), 23u);
}
