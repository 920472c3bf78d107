// Reports where the reader of a profile does not do what its text seems to say.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct ProfileFinding {
    std::string lines; // "12" or "12,40,68"
    std::string text;
    bool isProblem; // otherwise it names content that is never read, in any profile
};

struct ProfileFindings {
    std::vector<ProfileFinding> list; // in the order of the first line

    [[nodiscard]] bool hasProblems() const;
};

// fileName is the name that selects the profile.
[[nodiscard]] ProfileFindings checkProfile(std::string_view text, const std::string &fileName);
