#include "framework/utility/CUtility.h"

#include <cstdio>
#include <filesystem>
#include <random>

namespace XimoGis::Utility {

std::wstring CUtility::CreateGUID() {
    // Version 4 (random) GUID.
    static thread_local std::mt19937_64 engine{std::random_device{}()};
    std::uniform_int_distribution<unsigned> byte(0, 255);
    unsigned char b[16];
    for (auto& v : b) v = static_cast<unsigned char>(byte(engine));
    b[6] = static_cast<unsigned char>((b[6] & 0x0F) | 0x40);
    b[8] = static_cast<unsigned char>((b[8] & 0x3F) | 0x80);
    wchar_t text[40];
    std::swprintf(text, 40, L"{%02X%02X%02X%02X-%02X%02X-%02X%02X-%02X%02X-%02X%02X%02X%02X%02X%02X}", b[0], b[1],
                  b[2], b[3], b[4], b[5], b[6], b[7], b[8], b[9], b[10], b[11], b[12], b[13], b[14], b[15]);
    return text;
}

bool CUtility::FileExists(const std::wstring& path) {
    std::error_code ec;
    return !path.empty() && std::filesystem::is_regular_file(std::filesystem::path(path), ec);
}

}  // namespace XimoGis::Utility
