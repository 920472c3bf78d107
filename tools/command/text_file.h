// Files as arguments.
#pragma once

#include <string>

// The whole text of a regular file. Fails the command when it cannot be read.
[[nodiscard]] std::string readTextFile(const std::string &path);
