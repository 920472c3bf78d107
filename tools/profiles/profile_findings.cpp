#include "tools/profiles/profile_findings.h"

#include <algorithm>

bool ProfileFindings::hasProblems() const {
    return std::ranges::any_of(m_lines, [](const auto &row) { return row.first.second; });
}

std::vector<ProfileFinding> ProfileFindings::list() const {
    std::vector<std::pair<int, ProfileFinding>> sorted;
    for (auto [key, lines] : m_lines) {
        std::ranges::sort(lines);
        std::string list;
        for (const int line : lines)
            list += (list.empty() ? "" : ",") + std::to_string(line);
        sorted.push_back({lines.front(), {list, key.first, key.second}});
    }
    std::ranges::stable_sort(sorted, {}, [](const auto &row) { return row.first; });
    std::vector<ProfileFinding> findings;
    for (auto &row : sorted)
        findings.push_back(std::move(row.second));
    return findings;
}

std::string quotedText(std::string_view text) {
    constexpr size_t longest = 40;
    return "\"" + std::string(text.substr(0, longest)) + (text.size() > longest ? "...\"" : "\"");
}
