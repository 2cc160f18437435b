#include "module/catalog/enmViewDirection.h"

namespace XimoGis::AssemblySchemes {

namespace {

const wchar_t* const kNames[] = {L"top", L"bottom", L"back", L"front", L"left", L"right"};

}  // namespace

bool IsViewDirection(int value) { return value >= eViewTop && value <= eViewRight; }

std::wstring GetViewDirectionName(enmViewDirection view) {
    return IsViewDirection(view) ? kNames[view - eViewTop] : L"";
}

bool ParseViewDirection(const std::wstring& text, enmViewDirection& view) {
    for (enmViewDirection candidate : kViewDirections) {
        if (text == kNames[candidate - eViewTop] || text == std::to_wstring(candidate)) {
            view = candidate;
            return true;
        }
    }
    return false;
}

}  // namespace XimoGis::AssemblySchemes
