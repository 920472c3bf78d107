// A choice of configs with its reasons, as the library makes it.
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
    std::vector<int32_t> ids; // of all configs, in their order
    egl::ChoiceAccount account;
};

// Of the device that this process's preferences choose. Fails the command for a list that eglChooseConfig refuses, and
// when the profile cannot be read.
[[nodiscard]] Explanation explain(const std::vector<int32_t> &criteria, egl::ConfigKind rules);

// A table of the configs and the order, and one object with the same.
[[nodiscard]] std::string explanationAsText(const Explanation &explanation);
[[nodiscard]] std::string explanationAsJson(const Explanation &explanation);
