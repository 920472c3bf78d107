// The parts of a program file that determine how it is loaded.
#pragma once

#include <string>

struct ElfProgram {
    enum Kind { notElf, otherMachine, fixed, dynamic };
    Kind kind = notElf;      // fixed: linked statically, so that no loader runs
    std::string interpreter; // the loader of a dynamic program
};

[[nodiscard]] ElfProgram readElfProgram(const std::string &file);
