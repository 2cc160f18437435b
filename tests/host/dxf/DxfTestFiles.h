#pragma once
// Files for the DXF tests: a fresh folder per test, reading and writing whole files.

#include <filesystem>
#include <string>

// An empty folder for the running test (removed and made anew).
std::filesystem::path dxfTestFolder();
std::string readBytes(const std::filesystem::path& file);
void writeBytes(const std::filesystem::path& file, const std::string& bytes);
