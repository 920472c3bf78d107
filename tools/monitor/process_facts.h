// Facts about a running program from the system and the preferences, beyond its own records.
#pragma once

#include <cstdint>
#include <string>
#include <sys/types.h>

struct ProcessFacts {
    std::string program; // its file; empty where the system does not say
    int64_t startMs = 0; // since 1970; 0 where the system does not say
    std::string device;  // the device profile that the preferences of its environment choose; empty for none
};

// Call it early: the preferences may change later, and those of "zelvane run" are removed with the program.
[[nodiscard]] ProcessFacts readProcessFacts(pid_t process);
