// Facts about a running program from the system and the preferences, beyond its own records.
#pragma once

#include <cstdint>
#include <string>
#include <sys/types.h>

struct ProcessFacts {
    std::string program; // its file; empty if the system does not report it
    int64_t startMs = 0; // since 1970; 0 if the system does not report it
    std::string device;  // the device profile in the preferences of its environment; empty for none
};

// To be called early: the preferences may change later, and those of "zelvane run" are removed with the program.
[[nodiscard]] ProcessFacts readProcessFacts(pid_t process);
