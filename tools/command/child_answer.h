// Questions that are asked in a child process.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "tools/command/json.h"

struct ChildAnswer {
    std::optional<Json> json;
    std::string failure; // why there is none: "does not answer within 10 seconds"
};

// Runs the question in a fork of this process and returns its result. A library that crashes, or a server that never
// answers, then ends the child only. An exception of the question is a failure with its text, and a Failure is thrown
// here again. Call it while the process has one thread.
[[nodiscard]] ChildAnswer askInChild(const std::function<Json()> &question, std::chrono::seconds limit);
