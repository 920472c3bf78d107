// The words ATTRIBUTE=VALUE as an attribute list of EGL.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Pairs, ended by EGL_NONE. Throws a UsageError for a word that is none, with the name that may be meant.
[[nodiscard]] std::vector<int32_t> readCriteria(const std::vector<std::string> &words);
