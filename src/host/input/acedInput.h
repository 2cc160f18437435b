#pragma once
// The host's user-input functions, reading the input script (AcEdInputScript) instead of a
// keyboard and a mouse. Status codes are the host's: RTNORM for a value, RTNONE for Enter,
// RTKWORD for a keyword (read it with acedGetInput), RTCAN for Escape or an empty script,
// RTERROR for bad arguments.

#include <cstddef>

#include "host/base/AcadTypes.h"
#include "host/base/resbuf.h"

// acedInitGet flags.
constexpr int RSG_NONULL = 0x0001;  // Enter is not an answer
constexpr int RSG_NOZERO = 0x0002;  // zero is not an answer
constexpr int RSG_NONEG = 0x0004;   // a negative number is not an answer
constexpr int RSG_NOLIM = 0x0008;
constexpr int RSG_GETZ = 0x0010;
constexpr int RSG_DASH = 0x0020;
constexpr int RSG_2D = 0x0040;
constexpr int RSG_OTHER = 0x0080;   // any text is an answer (RTKWORD, read with acedGetInput)
constexpr int RSG_DDISTFIRST = 0x0100;
constexpr int RSG_TRACKUCS = 0x0200;
constexpr int RSG_NOORTHOZ = 0x0400;
constexpr int RSG_NOOSNAP = 0x0800;
constexpr int RSG_NODDIST = 0x1000;

// Sets the flags and keywords ("Local1 Local2 _ Global1 Global2", see AcEdKeywordList) for the
// next input function only.
int acedInitGet(int flags, const ACHAR* keywordList);
// The keyword of the last RTKWORD result, in its global form, or the text typed when RSG_OTHER
// let it through. RTERROR when the last input function returned no keyword. The overload
// without a size expects the host's classic buffer of 133 characters.
int acedGetInput(ACHAR* buffer, std::size_t bufferSize);
int acedGetInput(ACHAR* buffer);

// A picked point, or typed coordinates "X,Y[,Z]" or "@dX,dY[,dZ]" (from the last point).
// basePoint, when given, is where the host would draw a rubber band from.
int acedGetPoint(const ads_point basePoint, const ACHAR* prompt, ads_point result);
// Typed text; Enter gives RTNORM with an empty string. Unless allowSpaces is set, the text ends
// at its first space, as the space bar ends the input. Keywords do not apply, as in the host.
// Text longer than the buffer is cut to fit.
int acedGetString(int allowSpaces, const ACHAR* prompt, ACHAR* result, std::size_t bufferSize);
int acedGetString(int allowSpaces, const ACHAR* prompt, ACHAR* result);
// An integer from -32768 to 32767, or a real; RSG_NOZERO and RSG_NONEG are honoured.
int acedGetInt(const ACHAR* prompt, int* result);
int acedGetReal(const ACHAR* prompt, ads_real* result);
// A keyword of the acedInitGet list, returned in its global form with RTNORM.
int acedGetKword(const ACHAR* prompt, ACHAR* result, std::size_t bufferSize);
int acedGetKword(const ACHAR* prompt, ACHAR* result);
