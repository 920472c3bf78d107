// Tells the writer of a profile where the reader does something else than the text seems to say.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct ProfileFinding {
    std::string lines; // "12" or "12,40,68"
    std::string text;
    bool isProblem; // else it tells what is never read, in any profile
};

struct ProfileFindings {
    std::vector<ProfileFinding> list; // in the order of the first line

    [[nodiscard]] bool hasProblems() const;
};

// fileName is what the profile is chosen by.
[[nodiscard]] ProfileFindings checkProfile(std::string_view text, const std::string &fileName);
