// What somebody who mistyped a name may have meant.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// The candidate that the fewest mistakes lead from to the word, or that the word begins. Empty when all are far away.
[[nodiscard]] std::string nearestTo(std::string_view word, const std::vector<std::string> &candidates);

// nearestTo() as the end of a sentence: "; did you mean "monitor"?", or nothing.
[[nodiscard]] std::string suggestion(std::string_view word, const std::vector<std::string> &candidates);
