#pragma once
// Numbers as text in the form every stored property, scale and XML attribute uses: plain ASCII
// decimals, independent of the process locale, and doubles written so that they read back exactly.

#include <string>
#include <string_view>

namespace XimoGis::Data {

class CNumberText {
public:
    // Shortest text that reads back to the same double ("0.1", "210", "1e+300").
    static std::wstring FormatDouble(double value);
    // Whole text must be a number; blanks around it are allowed. "nan" and "inf" are accepted so that
    // whatever FormatDouble wrote reads back.
    static bool ParseDouble(std::wstring_view text, double& value);
    // Whole text must be a base-10 integer; blanks around it are allowed.
    static bool ParseLong(std::wstring_view text, long& value);
    static bool ParseInt(std::wstring_view text, int& value);
};

}  // namespace XimoGis::Data
