#include "framework/data/CDDCache.h"

#include <array>

namespace XimoGis::Data {

namespace {
constexpr std::array<const wchar_t*, 14> kNames = {
    L"",          L"SYSTEM_ID",  L"GUID",     L"AS_DEFINITION_ID",   L"AS_INTERNAL_TAG",
    L"ENTITY_TYPE", L"AS_REF_NODE", L"AS_WIDTH", L"AS_HEIGHT",       L"AS_COMPONENT_ID",
    L"AS_ELEMENT_ID", L"AS_ELEMENT_TYPE_ID", L"AS_ELEMENT_CATALOG_ID", L"AS_ELEMENT_IGNORE",
};
}  // namespace

std::wstring CDDCache::GetAttributeName(int attributeId) {
    if (attributeId <= 0 || attributeId >= static_cast<int>(kNames.size())) return L"";
    return kNames[static_cast<std::size_t>(attributeId)];
}

int CDDCache::GetAttributeId(const std::wstring& name) {
    for (std::size_t i = 1; i < kNames.size(); ++i)
        if (name == kNames[i]) return static_cast<int>(i);
    return 0;
}

}  // namespace XimoGis::Data
