// The contents of a file, unchanged; empty for a missing one.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

inline std::string fileText(const std::filesystem::path &path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}
