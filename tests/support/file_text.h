// A whole file, byte by byte; a missing one is empty.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

inline std::string fileText(const std::filesystem::path &path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}
