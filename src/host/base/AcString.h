#pragma once
// Conversions between the host's wide text and UTF-8, the encoding of every file on disk.

#include <string>
#include <string_view>

std::string acutWcharToUtf8(std::wstring_view text);
// Invalid byte sequences become U+FFFD rather than failing: files from elsewhere may hold them.
std::wstring acutUtf8ToWchar(std::string_view text);
// Case-insensitive comparison of names (layers, blocks, styles), as the host does for symbol names.
bool acutNamesEqual(std::wstring_view a, std::wstring_view b);
std::wstring acutUpperName(std::wstring_view name);
