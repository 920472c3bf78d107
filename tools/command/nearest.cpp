#include "tools/command/nearest.h"

#include <algorithm>
#include <cctype>

namespace {

char lower(char character) {
    return static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
}

// Counts missing, extra, wrong and transposed letters, ignoring case.
size_t mistakes(std::string_view word, std::string_view meant) {
    std::vector<std::vector<size_t>> counts(word.size() + 1, std::vector<size_t>(meant.size() + 1));
    const auto same = [&](size_t row, size_t column) { return lower(word[row - 1]) == lower(meant[column - 1]); };
    for (size_t row = 0; row <= word.size(); ++row) {
        for (size_t column = 0; column <= meant.size(); ++column) {
            size_t &count = counts[row][column];
            count = row + column;
            if (row == 0 || column == 0) continue;
            count = std::min({counts[row - 1][column] + 1, counts[row][column - 1] + 1,
                              counts[row - 1][column - 1] + (same(row, column) ? 0 : 1)});
            const bool isSwap = row > 1 && column > 1 && same(row, column - 1) && same(row - 1, column);
            if (isSwap) count = std::min(count, counts[row - 2][column - 2] + 1);
        }
    }
    return counts[word.size()][meant.size()];
}

} // namespace

std::string nearestTo(std::string_view word, const std::vector<std::string> &candidates) {
    constexpr size_t shortestBeginning = 3;
    size_t fewest = word.size() / 3 + 1;
    std::string nearest;
    for (const std::string &candidate : candidates) {
        const bool isBeginning =
            word.size() >= shortestBeginning && mistakes(word, candidate.substr(0, word.size())) == 0;
        const size_t count = isBeginning ? 0 : mistakes(word, candidate);
        if (count >= fewest && !(count == fewest && nearest.empty())) continue;
        fewest = count;
        nearest = candidate;
    }
    return nearest;
}

std::string suggestion(std::string_view word, const std::vector<std::string> &candidates) {
    const std::string nearest = nearestTo(word, candidates);
    return nearest.empty() ? "" : "; did you mean \"" + nearest + "\"?";
}
