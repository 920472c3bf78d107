// The little of a program's file that says how it will be loaded.
#pragma once

#include <string>

struct ElfProgram {
    enum Kind { notElf, otherMachine, fixed, dynamic };
    Kind kind = notElf;      // fixed: linked statically, so that no loader runs
    std::string interpreter; // the loader that a dynamic one asks for
};

[[nodiscard]] ElfProgram readElfProgram(const std::string &file);
