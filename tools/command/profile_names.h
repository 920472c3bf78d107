// The names of profiles as a user gives them.
#pragma once

#include <string>
#include <vector>

// Of the built-in profiles, in the library's order.
[[nodiscard]] std::vector<std::string> builtInProfileNames();

// Of the files of a directory, in their order, whatever they are. Says so on standard error when it cannot be read.
[[nodiscard]] std::vector<std::string> fileNames(const std::string &directory);

// Fails the command unless the name is that of a built-in profile or of a file in the directory that can be read. An
// empty directory stands for none.
void checkProfileName(const std::string &name, const std::string &directory);
