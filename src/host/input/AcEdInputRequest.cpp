#include "host/input/AcEdInputRequest.h"

#include "host/input/AcEdTypedInput.h"
#include "host/input/acedInput.h"

namespace {
// What the host keeps between input calls: the pending acedInitGet settings, the last keyword
// and the last point.
struct InputState {
    int pendingFlags = 0;
    AcEdKeywordList pendingKeywords;
    std::wstring lastInput;
    AcGePoint3d lastPoint;
};

InputState& state() {
    static InputState s;
    return s;
}
}  // namespace

AcEdInputRequest::AcEdInputRequest(const ACHAR* prompt)
    : m_prompt(prompt ? prompt : L""), m_hasPrompt(prompt != nullptr) {
    InputState& s = state();
    m_flags = s.pendingFlags;
    m_keywords = std::move(s.pendingKeywords);
    s.pendingFlags = 0;
    s.pendingKeywords = AcEdKeywordList();
    s.lastInput.clear();
    if (m_hasPrompt) acedInputScript()->showPrompt(m_prompt.c_str());
}

void AcEdInputRequest::reject() const {
    if (m_hasPrompt) acedInputScript()->showPrompt(m_prompt.c_str());
}

int AcEdInputRequest::run(const std::function<int(const AcEdInputScript::Item&)>& value) {
    using Kind = AcEdInputScript::Kind;
    for (AcEdInputScript::Item item; acedInputScript()->next(item);) {
        int status = kRejected;
        switch (item.kind) {
            case Kind::kEscape: return RTCAN;
            case Kind::kEnter:
                if (!hasFlag(RSG_NONULL)) return RTNONE;
                break;
            case Kind::kText: {
                const std::wstring keyword = m_keywords.match(item.text);
                if (!keyword.empty()) {
                    setLastInput(keyword);
                    return RTKWORD;
                }
                status = value(item);
                if (status == kRejected && hasFlag(RSG_OTHER)) {
                    setLastInput(std::wstring(AcEdTypedInput::trim(item.text)));
                    return RTKWORD;
                }
                break;
            }
            case Kind::kPick:
            case Kind::kMove: status = value(item); break;
        }
        if (status == kRejected) reject();
        else if (status != kIgnored) return status;
    }
    // Nobody is left to answer: the user walked away, which is as good as Escape.
    return RTCAN;
}

void AcEdInputRequest::setPending(int flags, const ACHAR* keywordList) {
    state().pendingFlags = flags;
    state().pendingKeywords = AcEdKeywordList(keywordList);
}

const std::wstring& AcEdInputRequest::lastInput() { return state().lastInput; }

void AcEdInputRequest::setLastInput(const std::wstring& text) { state().lastInput = text; }

const AcGePoint3d& AcEdInputRequest::lastPoint() { return state().lastPoint; }

void AcEdInputRequest::returnPoint(const AcGePoint3d& point, ads_point result) {
    state().lastPoint = point;
    result[0] = point.x;
    result[1] = point.y;
    result[2] = point.z;
}

bool AcEdInputRequest::typedPoint(std::wstring_view text, AcGePoint3d& point) {
    text = AcEdTypedInput::trim(text);
    const bool relative = !text.empty() && text.front() == L'@';
    if (!AcEdTypedInput::parsePoint(relative ? text.substr(1) : text, point)) return false;
    if (relative) point = lastPoint() + point.asVector();
    return true;
}
