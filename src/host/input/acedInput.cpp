#include "host/input/acedInput.h"

#include <cwchar>
#include <string>

#include "host/input/AcEdInputRequest.h"
#include "host/input/AcEdTypedInput.h"

namespace {
// The classic size of the host's result strings: 132 characters and the terminator.
constexpr std::size_t kClassicBufferSize = 133;

using Item = AcEdInputScript::Item;
using Kind = AcEdInputScript::Kind;

bool copyText(const std::wstring& text, ACHAR* buffer, std::size_t size) {
    if (!buffer || size == 0) return false;
    const std::size_t n = std::min(text.size(), size - 1);
    std::wmemcpy(buffer, text.data(), n);
    buffer[n] = L'\0';
    return true;
}

// A typed number is acceptable under the zero and negative flags.
bool numberAllowed(const AcEdInputRequest& request, double value) {
    return !(request.hasFlag(RSG_NOZERO) && value == 0.0) && !(request.hasFlag(RSG_NONEG) && value < 0.0);
}
}  // namespace

int acedInitGet(int flags, const ACHAR* keywordList) {
    AcEdInputRequest::setPending(flags, keywordList);
    return RTNORM;
}

int acedGetInput(ACHAR* buffer, std::size_t bufferSize) {
    const std::wstring& input = AcEdInputRequest::lastInput();
    if (input.empty()) return RTERROR;
    return copyText(input, buffer, bufferSize) ? RTNORM : RTERROR;
}

int acedGetInput(ACHAR* buffer) { return acedGetInput(buffer, kClassicBufferSize); }

int acedGetPoint(const ads_point, const ACHAR* prompt, ads_point result) {
    AcEdInputRequest request(prompt);
    if (!result) return RTERROR;
    AcGePoint3d point;
    const int status = request.run([&](const Item& item) {
        if (item.kind == Kind::kMove) return AcEdInputRequest::kIgnored;
        if (item.kind == Kind::kPick) {
            point = item.point;
            return RTNORM;
        }
        return AcEdInputRequest::typedPoint(item.text, point) ? RTNORM : AcEdInputRequest::kRejected;
    });
    if (status == RTNORM) AcEdInputRequest::returnPoint(point, result);
    return status;
}

int acedGetString(int allowSpaces, const ACHAR* prompt, ACHAR* result, std::size_t bufferSize) {
    // Keywords do not apply to strings, but the acedInitGet settings are used up all the same.
    AcEdInputRequest request(prompt);
    if (!result || bufferSize == 0) return RTERROR;
    for (Item item; acedInputScript()->next(item);) {
        if (item.kind == Kind::kEscape) return RTCAN;
        if (item.kind == Kind::kEnter) return copyText(L"", result, bufferSize) ? RTNORM : RTERROR;
        if (item.kind != Kind::kText) continue;
        std::wstring text = item.text;
        if (!allowSpaces) text = text.substr(0, text.find(L' '));
        return copyText(text, result, bufferSize) ? RTNORM : RTERROR;
    }
    return RTCAN;
}

int acedGetString(int allowSpaces, const ACHAR* prompt, ACHAR* result) {
    return acedGetString(allowSpaces, prompt, result, kClassicBufferSize);
}

int acedGetInt(const ACHAR* prompt, int* result) {
    AcEdInputRequest request(prompt);
    if (!result) return RTERROR;
    return request.run([&](const Item& item) {
        if (item.kind == Kind::kMove) return AcEdInputRequest::kIgnored;
        long value = 0;
        if (item.kind != Kind::kText || !AcEdTypedInput::parseInteger(item.text, value) || value < -32768 ||
            value > 32767 || !numberAllowed(request, static_cast<double>(value)))
            return AcEdInputRequest::kRejected;
        *result = static_cast<int>(value);
        return RTNORM;
    });
}

int acedGetReal(const ACHAR* prompt, ads_real* result) {
    AcEdInputRequest request(prompt);
    if (!result) return RTERROR;
    return request.run([&](const Item& item) {
        if (item.kind == Kind::kMove) return AcEdInputRequest::kIgnored;
        double value = 0.0;
        if (item.kind != Kind::kText || !AcEdTypedInput::parseReal(item.text, value) || !numberAllowed(request, value))
            return AcEdInputRequest::kRejected;
        *result = value;
        return RTNORM;
    });
}

int acedGetKword(const ACHAR* prompt, ACHAR* result, std::size_t bufferSize) {
    AcEdInputRequest request(prompt);
    if (!result || bufferSize == 0) return RTERROR;
    const int status = request.run([](const Item& item) {
        return item.kind == Kind::kMove ? AcEdInputRequest::kIgnored : AcEdInputRequest::kRejected;
    });
    if (status == RTKWORD) return copyText(AcEdInputRequest::lastInput(), result, bufferSize) ? RTNORM : RTERROR;
    if (status == RTNONE) copyText(L"", result, bufferSize);
    return status;
}

int acedGetKword(const ACHAR* prompt, ACHAR* result) { return acedGetKword(prompt, result, kClassicBufferSize); }
