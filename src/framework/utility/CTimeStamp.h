#pragma once
// The local time as the framework writes it into its logs: "YYYY-MM-DD HH:MM:SS.mmm".

#include <functional>
#include <string>

namespace XimoGis::Utility {

class CTimeStamp {
public:
    using Clock = std::function<std::wstring()>;

    // The current local time, or what the clock set by SetClock gives.
    static std::wstring Now();
    // Replaces the time source (tests need fixed times); an empty clock restores the local time.
    static void SetClock(Clock clock);
};

}  // namespace XimoGis::Utility
