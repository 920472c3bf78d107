// Profile names as arguments.
#pragma once

#include <string>
#include <vector>

// The built-in profiles, in the library's order.
[[nodiscard]] std::vector<std::string> builtInProfileNames();

// The files of a directory, in its order, whatever their contents. Prints an error when it cannot be read.
[[nodiscard]] std::vector<std::string> fileNames(const std::string &directory);

// Fails the command unless the name is that of a built-in profile or of a readable file in the directory. An empty
// directory stands for none.
void checkProfileName(const std::string &name, const std::string &directory);
