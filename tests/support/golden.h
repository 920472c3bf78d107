// Expected texts that are too long for the code.
#pragma once

#include <fstream>
#include <sstream>
#include <string>

// The text of a file in the tests' directory.
inline std::string golden(const std::string &path) {
    std::ostringstream text;
    text << std::ifstream(TESTS_DIRECTORY "/" + path).rdbuf();
    return text.str();
}
