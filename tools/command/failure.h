// How a verb ends early.
#pragma once

#include <string>

// Thrown by a verb that has printed its error on standard error: the exit status of the command.
struct Failure {
    int status;
};

// Writes "zelvane: " and the message to standard error and throws a Failure of status 1.
[[noreturn]] void failCommand(const std::string &message);
