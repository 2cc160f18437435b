#pragma once
// One call of an input function (acedGetPoint, acedDragGen...) reading the input script with the
// rules every input function shares: the settings of the last acedInitGet apply to this call
// only; Escape, and an empty script, cancel (RTCAN); Enter gives RTNONE unless RSG_NONULL
// forbids it; typed text that names a keyword gives RTKWORD, and with RSG_OTHER so does any
// other text the function cannot use. Input that is not valid shows the prompt again and the
// next item is read, as the host asks again.

#include <functional>
#include <string>
#include <string_view>

#include "host/base/AcadTypes.h"
#include "host/base/resbuf.h"
#include "host/input/AcEdInputScript.h"
#include "host/input/AcEdKeywordList.h"

class AcEdInputRequest {
public:
    // What a function's value handler may answer besides a status code to return.
    static constexpr int kIgnored = 0;   // nothing to do with this item; read the next one
    static constexpr int kRejected = 1;  // not valid here; prompt again and read the next one

    // Takes the pending acedInitGet settings and shows the prompt.
    explicit AcEdInputRequest(const ACHAR* prompt);

    bool hasFlag(int flag) const { return (m_flags & flag) != 0; }

    // Reads items until one ends the call and returns its status. value is asked about every
    // pick, move and typed text that is not a keyword.
    int run(const std::function<int(const AcEdInputScript::Item&)>& value);

    // The settings that the next input function takes.
    static void setPending(int flags, const ACHAR* keywordList);
    // The keyword (global form) or other text of the last RTKWORD result; empty when the last
    // input function ended otherwise.
    static const std::wstring& lastInput();
    // Coordinates as typed: "X,Y[,Z]", or "@dX,dY[,dZ]" from the last point entered.
    static bool typedPoint(std::wstring_view text, AcGePoint3d& point);
    // The last point entered.
    static const AcGePoint3d& lastPoint();
    // Hands an entered point to the caller's result and remembers it as the last point.
    static void returnPoint(const AcGePoint3d& point, ads_point result);

private:
    static void setLastInput(const std::wstring& text);
    // Shows the prompt again after input that was not valid.
    void reject() const;

    std::wstring m_prompt;
    bool m_hasPrompt = false;
    int m_flags = 0;
    AcEdKeywordList m_keywords;
};
