// The findings of a profile check, by line.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

struct ProfileFinding {
    std::string lines; // "12" or "12,40,68"
    std::string text;
    bool isProblem; // otherwise a harmless remark
};

class ProfileFindings {
public:
    void problem(int line, const std::string &text) { m_lines[{text, true}].push_back(line); }
    void note(int line, const std::string &text) { m_lines[{text, false}].push_back(line); }

    [[nodiscard]] bool hasProblems() const;
    // In the order of the first line. Equal findings are combined.
    [[nodiscard]] std::vector<ProfileFinding> list() const;

private:
    std::map<std::pair<std::string, bool>, std::vector<int>> m_lines; // of each text
};

// In quotes, and cut to a length that fits into a line.
[[nodiscard]] std::string quotedText(std::string_view text);
