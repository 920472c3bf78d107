// Arguments ATTRIBUTE=VALUE as an attribute list of EGL.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Pairs, ended by EGL_NONE. Throws a UsageError for an invalid argument, with a suggestion.
[[nodiscard]] std::vector<int32_t> readCriteria(const std::vector<std::string> &words);
