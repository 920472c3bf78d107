// Suggestions for mistyped names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// The candidate with the smallest edit distance to the word, or one that begins with it. Empty when none is near.
[[nodiscard]] std::string nearestTo(std::string_view word, const std::vector<std::string> &candidates);

// nearestTo() as the end of a sentence: "; did you mean "monitor"?", or the empty text.
[[nodiscard]] std::string suggestion(std::string_view word, const std::vector<std::string> &candidates);
