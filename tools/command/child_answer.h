// Runs queries in a child process.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "tools/command/json.h"

struct ChildAnswer {
    std::optional<Json> json;
    std::string failure; // the reason if there is none: "does not answer within 10 seconds"
};

// Runs the query in a fork of this process and returns its result, so that a crash of a library or a hanging server
// ends only the child. An exception of the query is a failure with its text; a Failure is thrown again. Must be called
// while the process has one thread.
[[nodiscard]] ChildAnswer askInChild(const std::function<Json()> &question, std::chrono::seconds limit);
