#include "framework/utility/CTimeStamp.h"

#include <chrono>
#include <ctime>
#include <cwchar>

namespace XimoGis::Utility {

namespace {

CTimeStamp::Clock& ClockSlot() {
    static CTimeStamp::Clock clock;
    return clock;
}

}  // namespace

std::wstring CTimeStamp::Now() {
    if (const Clock& clock = ClockSlot()) return clock();
    const auto now = std::chrono::system_clock::now();
    const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
    const auto millis =
        std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() % 1000;
    std::tm local{};
    localtime_r(&seconds, &local);
    wchar_t text[32];
    std::swprintf(text, 32, L"%04d-%02d-%02d %02d:%02d:%02d.%03d", local.tm_year + 1900, local.tm_mon + 1,
                  local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec, static_cast<int>(millis));
    return text;
}

void CTimeStamp::SetClock(Clock clock) {
    ClockSlot() = std::move(clock);
}

}  // namespace XimoGis::Utility
