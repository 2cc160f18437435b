#pragma once
// Reading values the way the user types them on the command line: decimal numbers with an
// optional exponent ("12", "-0.5", "1e3") and coordinates "X,Y" or "X,Y,Z". Surrounding spaces
// are allowed; anything else in the text makes the reading fail.

#include <string_view>

#include "host/geometry/AcGePoint3d.h"

class AcEdTypedInput {
public:
    static bool parseReal(std::wstring_view text, double& value);
    static bool parseInteger(std::wstring_view text, long& value);
    // Z is 0 when only X and Y are typed.
    static bool parsePoint(std::wstring_view text, AcGePoint3d& point);
    static std::wstring_view trim(std::wstring_view text);
};
