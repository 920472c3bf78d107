// A config choice with its reasons, computed by the library's code.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "profiles/choice_account.h"
#include "profiles/config_list.h"

struct Explanation {
    std::string device; // empty for none
    egl::ConfigKind rules;
    std::vector<int32_t> criteria;
    std::vector<int32_t> ids; // of all configs, in order
    egl::ChoiceAccount account;
};

// For the device in this process's preferences. Fails the command for a list that eglChooseConfig rejects, and when the
// profile cannot be read.
[[nodiscard]] Explanation explain(const std::vector<int32_t> &criteria, egl::ConfigKind rules);

// The configs and the order as a table, and as one JSON object.
[[nodiscard]] std::string explanationAsText(const Explanation &explanation);
[[nodiscard]] std::string explanationAsJson(const Explanation &explanation);
